#include "plan/CalendarContainerViewController.h"

#include <utility>

namespace kesto
{

CalendarContainerViewController::CalendarContainerViewController(std::unique_ptr<CalendarViewController> calendar,
                                                                 std::unique_ptr<ViewController> day)
{
    calendar->setDayScreen(dynamic_cast<DietDayScreen *>(day.get()));
    setTitle(calendar->title());
    calendar_ = adopt(std::move(calendar));
    day_ = day != nullptr ? adopt(std::move(day)) : nullptr;
}

QList<ViewController *> CalendarContainerViewController::visibleChildren() const
{
    return day_ != nullptr ? QList{calendar_, day_} : QList{calendar_};
}

} // namespace kesto
