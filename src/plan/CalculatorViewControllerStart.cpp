#include "plan/CalculatorViewController.h"

#include "components/AlertCenter.h"
#include "components/Shell.h"
#include "model/DietDay.h"
#include "plan/PlanContext.h"
#include "platform/CloudKeyValueStore.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"
#include "util/MNAdditions.h"

#include <QSet>
#include <QTimer>

#include <chrono>
#include <utility>

namespace kesto
{

namespace
{

using namespace std::chrono_literals;

constexpr auto confirmationDelay = 300ms;
constexpr qint64 secondsPerDay = 86400;
constexpr int cancelButtonIndex = 0;

QList<Alert::Button> startButtons()
{
    return {{localized(QStringLiteral("Отменить")), Alert::Role::Cancel}, {localized(QStringLiteral("Начать"))}};
}

Result<std::vector<DietDay *>> daysBefore(const QDateTime &date, ManagedObjectContext &context)
{
    FetchRequest earlier;
    earlier.predicate = attribute("date") < date;
    return context.fetch<DietDay>(earlier);
}

} // namespace

void CalculatorViewController::startDietIntro()
{
    AlertCenter::sharedCenter().show({.title = localized(QStringLiteral("Начать диету с")),
                                      .buttons = startButtons(),
                                      .dateField = Alert::DateField{},
                                      .context = this,
                                      .answered = [this](const AlertAnswer &answer) {
                                          if (!answer.isCancel)
                                              dialogAnswered(answer.date);
                                      }});
}

void CalculatorViewController::dialogAnswered(const QDateTime &date)
{
    const auto earlier = daysBefore(date, planContext());
    if (earlier && earlier->empty()) { // when they can't be read, there may be some to lose
        startDietOn(date);
        return;
    }
    startDiedDate_ = date;
    QTimer::singleShot(confirmationDelay, this, &CalculatorViewController::showAlert);
}

void CalculatorViewController::showAlert()
{
    QList<Alert::Button> buttons = startButtons();
    buttons.last().role = Alert::Role::Destructive;
    AlertCenter::sharedCenter().show(
        {.message = localized(
             QStringLiteral("Все данные внесенные до начала новго старта диеты будут удалены, начать диету?")),
         .buttons = buttons,
         .context = this,
         .answered = [this](const AlertAnswer &answer) { alertView(answer.buttonIndex); }});
}

void CalculatorViewController::alertView(int clickedButtonAtIndex)
{
    const std::optional<QDateTime> date = std::exchange(startDiedDate_, std::nullopt);
    if (clickedButtonAtIndex != cancelButtonIndex && date)
        startDietOn(*date);
}

void CalculatorViewController::startDietOn(const QDateTime &date)
{
    log(QStringLiteral("start starting diet"));
    closePicker();
    CoreDataManager &manager = CoreDataManager::sharedManager();
    ManagedObjectContext &context = planContext();
    const QDateTime start = mn_beginningOfDay(date);
    if (const auto earlier = daysBefore(date, context); !earlier)
        log("startDietOn: error - %@", earlier.error().message());
    else {
        for (DietDay *day : *earlier)
            context.deleteObject(*day);
    }
    savePlan();

    manager.setStartDietDay(start);
    UserDefaults &defaults = Platform::current().userDefaults();
    defaults.setValue(start, Keys::kStartDietDateKey);
    defaults.setInteger(period1(), Keys::kPeriod1Key);
    defaults.setInteger(period2(), Keys::kPeriod2Key);
    defaults.setInteger(period3(), Keys::kPeriod3Key);
    defaults.setFloat(idealWeidht_, Keys::kIdealWidth);
    if (CloudKeyValueStore *cloud = manager.cloudStore()) {
        for (const QString &key :
             {Keys::kStartDietDateKey, Keys::kPeriod1Key, Keys::kPeriod2Key, Keys::kPeriod3Key, Keys::kIdealWidth})
            cloud->setObject(defaults.valueForKey(key), key);
    }
    defaults.synchronize();
    makeAttackPeriodForDate(start, period1());
    startDiedDate_.reset();
    if (Shell *shell = Shell::current())
        shell->openCalendar();
}

void CalculatorViewController::makeAttackPeriodForDate(const QDateTime &date, int periodDays)
{
    if (periodDays < 1)
        return;
    ManagedObjectContext &context = planContext();
    // As dietDatWithDate() of each date, but a long Attack takes one fetch and one save.
    FetchRequest request;
    request.predicate =
        attribute("date") >= date && attribute("date") <= date.addSecs((periodDays - 1) * secondsPerDay);
    const auto found = context.fetch<DietDay>(request);
    if (!found) { // a second record of a day would hide the first one
        log("makeAttackPeriodForDate: error - %@", found.error().message());
        return;
    }
    QHash<QDateTime, DietDay *> known;
    for (DietDay *day : *found) {
        if (day->date() && !known.contains(*day->date()))
            known.insert(*day->date(), day);
    }
    for (int i = 0; i < periodDays; ++i) {
        const QDateTime step = date.addSecs(i * secondsPerDay);
        DietDay *day = known.value(step);
        if (day == nullptr) {
            day = &context.insert<DietDay>();
            day->setDate(step);
        }
        day->setChB(true);
    }
    savePlan();
}

} // namespace kesto
