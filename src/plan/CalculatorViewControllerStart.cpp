#include "plan/CalculatorViewController.h"

#include "components/AlertCenter.h"
#include "components/Shell.h"
#include "plan/PlanContext.h"
#include "platform/CloudKeyValueStore.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"
#include "util/MNAdditions.h"

#include <QTimer>

#include <chrono>
#include <utility>

namespace kesto
{

namespace
{

using namespace std::chrono_literals;

constexpr auto confirmationDelay = 300ms;
constexpr int cancelButtonIndex = 0;

QList<Alert::Button> startButtons()
{
    return {{localized(QStringLiteral("Отменить")), Alert::Role::Cancel}, {localized(QStringLiteral("Начать"))}};
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
    const auto earlier = CoreDataManager::sharedManager().dietDaysBefore(date);
    if (earlier && earlier->empty()) { // ask, too, when they could not be read
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
    const QDateTime start = mn_beginningOfDay(date);
    manager.deleteDietDaysBefore(date);
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
    CoreDataManager::sharedManager().markAttackDays(date, periodDays);
    savePlan();
}

} // namespace kesto
