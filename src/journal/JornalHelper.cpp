#include "journal/JornalHelper.h"

#include "journal/JornalTabBarController.h"
#include "journal/JornalTableViewController.h"
#include "journal/Reminders.h"
#include "journal/TimeOfDay.h"
#include "journal/TimeRowAdditions.h"
#include "model/DietDay.h"
#include "model/JornalDay.h"
#include "model/TimeRow.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "store/CoreDataManager.h"
#include "util/MNAdditions.h"

#include <QLocale>

#include <algorithm>
#include <utility>

namespace kesto
{

namespace
{

constexpr qint64 secondsPerDay = 86'400;

} // namespace

/// The journals that are open at once: for a moment two, while one takes the place of another.
struct JornalHelper::Registry
{
    explicit Registry(Platform &) {}
    std::shared_ptr<OpenJornals> open = std::make_shared<OpenJornals>();
};

std::unique_ptr<JornalTabBarController> JornalHelper::jornalTabBarVCForDate(const QDateTime &date)
{
    DietDay *day = dietDayForDate(mn_beginningOfDay(date));
    return day != nullptr ? std::make_unique<JornalTabBarController>(*day) : nullptr;
}

std::unique_ptr<JornalTabBarController> JornalHelper::jornalTabBarVCForToday()
{
    return jornalTabBarVCForDate(Platform::current().clock().now());
}

DietDay *JornalHelper::dietDayForDate(const QDateTime &date)
{
    ManagedObjectContext &context = *CoreDataManager::sharedManager().managedObjectContext();
    DietDay *day = DietDay::dietDatWithDate(date, context).value_or(nullptr);
    if (day != nullptr && day->jornalDay() == nullptr) {
        day->setJornalDay(&context.insert<JornalDay>());
        context.saveOrKeepChanges();
    }
    return day;
}

float JornalHelper::currentTime()
{
    const Platform &platform = Platform::current();
    return timeOfDay(platform.calendar().timeOf(platform.clock().now()));
}

JornalHelper::JornalHelper(DietDay &dietDay)
    : manager_(&CoreDataManager::sharedManager())
    , open_(Platform::current().shared<Registry>().open)
    , dietDay_(&dietDay)
    , date_(dietDay.date().value_or(QDateTime()))
{
    open_->append(this);
}

JornalHelper::~JornalHelper()
{
    deallocCurrentDay();
    open_->removeAll(this);
}

DietDay *JornalHelper::dietDay() const
{
    return dietDay_ != nullptr && manager_ != nullptr && !dietDay_->isDeleted() ? dietDay_ : nullptr;
}

QString JornalHelper::dateText() const
{
    const Platform &platform = Platform::current();
    const QLocale locale(platform.strings().preferredLanguage());
    return locale.toString(platform.calendar().dayOf(date_), QStringLiteral("d MMM"));
}

void JornalHelper::goToPrevisiousDay() { step(-1); }

void JornalHelper::goToNextDay() { step(1); }

// Where the clocks change, 86,400 seconds do not lead to the beginning of a day, at which days are looked up: the
// nearest beginning is meant.
void JornalHelper::step(int days)
{
    const QDateTime there = date_.addSecs(days * secondsPerDay);
    goToDate(mn_beginningOfDay(there.addSecs(secondsPerDay / 2)));
}

void JornalHelper::goToDate(const QDateTime &date)
{
    DietDay *there = dietDayForDate(date);
    if (there == nullptr)
        return;
    deallocCurrentDay();
    dietDay_ = there->isDeleted() ? dietDayForDate(date) : there; // the same day may have been left empty
    if (dietDay_ == nullptr)
        return;
    date_ = date;
    Q_EMIT dateChanged();
    for (JornalTableViewController *screen : screens_) {
        screen->setDietDay(dietDay_);
        screen->setJornalDay(dietDay_->jornalDay());
    }
}

void JornalHelper::deallocCurrentDay()
{
    DietDay *day = dietDay();
    dietDay_ = nullptr;
    if (day == nullptr ||
        std::any_of(open_->begin(), open_->end(), [day](const JornalHelper *other) { return other->dietDay_ == day; }))
        return;
    ManagedObjectContext &context = day->managedObjectContext();
    bool deleted = false;
    if (JornalDay *jornal = day->jornalDay(); jornal != nullptr) {
        int kept = 0;
        for (TimeRow *row : jornal->timeRows()) {
            if (!isEmpty(*row)) {
                ++kept;
                continue;
            }
            cancelReminder(*row);
            jornal->removeTimeRows(*row);
            context.deleteObject(*row);
            deleted = true;
        }
        if (kept == 0 && !jornal->sportDay() && !jornal->hotDay() && !jornal->meatSportActivity()) {
            day->setJornalDay(nullptr);
            context.deleteObject(*jornal);
            deleted = true;
        }
    }
    if (day->jornalDay() == nullptr && day->isEmpty()) {
        context.deleteObject(*day);
        deleted = true;
    }
    if (deleted)
        context.saveOrKeepChanges();
}

} // namespace kesto
