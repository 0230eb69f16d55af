#include "plan/CalendarViewController.h"

#include "components/DayWatch.h"
#include "components/NavigationController.h"
#include "model/DietDay.h"
#include "model/DishInDietDay.h"
#include "plan/DayDishes.h"
#include "plan/DayTexts.h"
#include "plan/PlanContext.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "store/CoreDataManager.h"
#include "util/MNAdditions.h"
#include "util/TypedNumber.h"

#include <algorithm>
#include <utility>

namespace kesto
{

namespace
{

constexpr int beforeStart = -1; // the phase of the days before the diet

QDateTime today() { return mn_beginningOfDay(Platform::current().clock().now()); }

int periodOf(const QDateTime &date)
{
    return CoreDataManager::dietPeriodForCalendar(Platform::current().calendar(), date);
}

} // namespace

CalendarViewController::CalendarViewController(CalendarScreens screens)
    : screens_(std::move(screens))
{
    connect(&DayWatch::sharedWatch(), &DayWatch::dayChanged, this, [this] {
        currentDate_ = Platform::current().calendar().startOfDay(currentDay_);
        month_.setSelectedDate(currentDate_);
        if (isVisible())
            showStored();
    });
}

void CalendarViewController::viewDidLoad()
{
    currentDate_ = today();
    month_.showMonth(Platform::current().calendar().dayOf(currentDate_));
    month_.setSelectedDate(currentDate_);
    footer_.setIndexPath(CalendarMonth::indexPathOf(month_.selectedIndex()));
    updateUIForDate(currentDate_, periodOf(currentDate_));
}

// The journal or the day screen may have changed the records, and the date may have changed.
void CalendarViewController::viewWillAppear() { showStored(); }

void CalendarViewController::showStored()
{
    month_.refresh();
    updateUIForDate(currentDate_, periodOf(currentDate_));
}

bool CalendarViewController::calendarView(const QDateTime &shouldSelectDate) const
{
    return CalendarMonth::isFromStartOn(shouldSelectDate);
}

void CalendarViewController::calendarView(const CalendarCell &didSelectCell, const IndexPath &atIndexPath)
{
    Q_EMIT editingShouldEnd(); // a text being typed belongs to the day selected before
    currentDate_ = didSelectCell.date;
    month_.setSelectedDate(currentDate_);
    footer_.setIndexPath(atIndexPath);
    updateUIForDate(didSelectCell.date, didSelectCell.dietPeriod);
}

void CalendarViewController::touchCell(int index)
{
    if (index < 0 || index >= month_.cells().size())
        return;
    const CalendarCell cell = month_.cells()[index];
    if (calendarView(cell.date))
        calendarView(cell, CalendarMonth::indexPathOf(index));
}

void CalendarViewController::updateUIForDate(const QDateTime &date, int dietPeriod)
{
    currentDate_ = date;
    currentDay_ = Platform::current().calendar().dayOf(date);
    // With a phase of negative length dietPeriodForCalendar() may put days before the start into Stabilization.
    dietPeriod_ = CalendarMonth::isFromStartOn(date) ? dietPeriod : beforeStart;
    if (dayScreen_ != nullptr) {
        if (!isDayDisabled())
            dayScreen_->setDate(date, dietPeriod_);
        dayScreen_->setDisbledDay(isDayDisabled());
    }
    readDay();
}

void CalendarViewController::readDay()
{
    const DietDay *day = isDayDisabled() ? nullptr : DietDay::dayWithoutCreation(currentDate_, planContext());
    const CoreDataManager &manager = CoreDataManager::sharedManager();
    const std::optional<float> weight = day != nullptr ? day->weight() : std::nullopt;
    currentWeight_ = weightText(weight > 0 ? weight : std::nullopt, manager.isMetrickSystem(), manager.kgString());
    dishes_.clear();
    if (day != nullptr && dayScreen_ == nullptr) {
        for (const DishInDietDay *planned : dishesOfDay(*day))
            dishes_.append(planned->displayName());
    }
    footer_.fillFields(day);
    footer_.setDietPeriod(dietPeriod_, day, currentDate_);
    Q_EMIT dayChanged();
}

QString CalendarViewController::periodName() const { return CoreDataManager::periodNameForDietPeriod(dietPeriod_); }

QColor CalendarViewController::periodColor() const
{
    return CoreDataManager::colorForPeriod(dietPeriod_).value_or(QColor());
}

QString CalendarViewController::dateText() const { return dayTitle(currentDate_); }

void CalendarViewController::nextMonth() { moveMonth(1); }

void CalendarViewController::previousMonth() { moveMonth(-1); }

void CalendarViewController::moveMonth(int count)
{
    Q_EMIT editingShouldEnd();
    month_.showMonth(month_.month().addMonths(count));
}

void CalendarViewController::showToday()
{
    Q_EMIT editingShouldEnd();
    month_.showMonth(Platform::current().calendar().dayOf(today()));
}

void CalendarViewController::saveOrRemove(DietDay &day)
{
    if (day.isEmpty())
        planContext().deleteObject(day);
    savePlan();
    dietDayDetailViewControllerDidUpdateDay();
    if (dayScreen_ != nullptr)
        dayScreen_->reloadDay();
}

void CalendarViewController::dietDayTypeButtonTouched(const CalKindButton &button, const QDateTime &date,
                                                      const IndexPath &)
{
    const auto found = DietDay::dietDatWithDate(date, planContext());
    if (!found)
        return;
    DietDay &day = **found;
    for (const QString &key : DayKinds::keys())
        day.setValueForKey(QVariant(), key);
    if (button.isSelected()) // store no false: the day would not count as empty
        day.setValueForKey(true, DayKinds::keys()[static_cast<size_t>(button.tag())]);
    saveOrRemove(day);
}

void CalendarViewController::textFieldDidEndEditing(int tag, const QString &text)
{
    const QString &key = CalFooterView::fieldKeys()[static_cast<size_t>(tag)];
    const float value = floatValue(text);
    const auto found = DietDay::dietDatWithDate(currentDate_, planContext());
    if (!found)
        return;
    DietDay &day = **found;
    day.setValueForKey(value > 0 ? QVariant(value) : QVariant(), key);
    saveOrRemove(day);
}

void CalendarViewController::dietDayDetailViewControllerDidUpdateDay()
{
    month_.refreshDate(currentDate_);
    readDay();
}

void CalendarViewController::openJornal()
{
    if (screens_.jornal && !isDayDisabled())
        push(screens_.jornal(currentDate_));
}

void CalendarViewController::openDaySettings()
{
    if (screens_.day && dayScreen_ == nullptr && !isDayDisabled())
        push(screens_.day(currentDate_, dietPeriod_, this));
}

void CalendarViewController::push(std::unique_ptr<ViewController> screen)
{
    if (NavigationController *navigation = navigationController(); navigation != nullptr && screen != nullptr)
        navigation->pushViewController(std::move(screen), true);
}

} // namespace kesto
