#pragma once

#include <QDateTime>

namespace kesto
{

/// Hears that the screen of a day changed the day's kind.
class DietDayDetailViewControllerDelegate
{
public:
    virtual ~DietDayDetailViewControllerDelegate() = default;
    virtual void dietDayDetailViewControllerDidUpdateDay() = 0;
};

/// The screen of a day, as the calendar beside it knows it.
class DietDayScreen
{
public:
    virtual ~DietDayScreen() = default;
    /// Loads another day, given by its beginning, of a phase; a disabled screen does so when it is so no more.
    virtual void setDate(const QDateTime &date, int period) = 0;
    /// Whether the day lies before the start of the diet: nothing of it is shown then.
    virtual void setDisbledDay(bool disabled) = 0;
};

} // namespace kesto
