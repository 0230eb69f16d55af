#include "plan/CalendarContainerViewController.h"

#include "plan/DietDayDetailViewController.h"

#include <utility>

namespace kesto
{

CalendarContainerViewController::CalendarContainerViewController(std::unique_ptr<CalendarViewController> calendar,
                                                                 std::unique_ptr<ViewController> day)
{
    calendar->setDayScreen(dynamic_cast<DietDayScreen *>(day.get()));
    setTitle(calendar->title());
    calendar_ = calendar.get();
    adopt(std::move(calendar));
    day_ = day != nullptr ? adopt(std::move(day)) : nullptr;
    auto *screen = qobject_cast<DietDayDetailViewController *>(day_);
    if (screen == nullptr)
        return;
    // The navigation bar shows the buttons of this container only.
    setRightBarButtonItem(screen->editDishesButtonItem());
    connect(screen, &DietDayDetailViewController::weightChanged, calendar_,
            [month = calendar_] { month->dietDayDetailViewControllerDidUpdateDay(); });
}

QList<ViewController *> CalendarContainerViewController::visibleChildren() const
{
    QList<ViewController *> children{calendar_};
    if (day_ != nullptr)
        children.append(day_);
    return children;
}

} // namespace kesto
