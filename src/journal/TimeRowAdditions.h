#pragma once

#include <QString>

#include <vector>

namespace kesto
{

class DishInDietDay;
class TimeRow;

/// Operations on a row of the journal.

/// Its time: 9:00, 18:30.
[[nodiscard]] QString timeDescription(const TimeRow &row);
/// Tells it from the other rows of all days: the day's date and its time, "%@ - %@". Tags its reminder.
[[nodiscard]] QString idStirng(const TimeRow &row);
/// Its dishes by displayOrder; those that have none come first.
[[nodiscard]] std::vector<DishInDietDay *> sortedDishes(const TimeRow &row);
/// No items, no dishes and no text of its own.
[[nodiscard]] bool isEmpty(const TimeRow &row);

} // namespace kesto
