#pragma once

#include "plan/CalendarViewController.h"

namespace kesto
{

/// The calendar on a tablet: the month beside the screen of the selected day.
class CalendarContainerViewController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(kesto::ViewController *calendar READ calendar CONSTANT)
    Q_PROPERTY(kesto::ViewController *day READ day CONSTANT)
public:
    /// day is a DietDayScreen or null.
    CalendarContainerViewController(std::unique_ptr<CalendarViewController> calendar,
                                    std::unique_ptr<ViewController> day);

    [[nodiscard]] ViewController *calendar() const { return calendar_; }
    /// Null without a day screen.
    [[nodiscard]] ViewController *day() const { return day_; }

protected:
    [[nodiscard]] QList<ViewController *> visibleChildren() const override;

private:
    CalendarViewController *calendar_; // owned
    ViewController *day_;              // owned
};

} // namespace kesto
