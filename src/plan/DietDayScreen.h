#pragma once

#include <QDateTime>

namespace kesto
{

/// Told when the screen of a day has changed the day's kind.
class DietDayDetailViewControllerDelegate
{
public:
    virtual ~DietDayDetailViewControllerDelegate() = default;
    virtual void dietDayDetailViewControllerDidUpdateDay() = 0;
};

/// What the calendar needs of the day screen beside it.
class DietDayScreen
{
public:
    virtual ~DietDayScreen() = default;
    /// Loads the day that begins at a date and creates its record. A disabled screen loads it when it is enabled.
    virtual void setDate(const QDateTime &date, int period) = 0;
    /// Shows the loaded day again after a change elsewhere. A record that the change deleted is not created anew.
    virtual void reloadDay() = 0;
    /// A disabled screen shows nothing: the day is before the start of the diet.
    virtual void setDisbledDay(bool disabled) = 0;
};

} // namespace kesto
