#pragma once

#include <vector>

namespace kesto
{

class DietDay;
class DishInDietDay;

/// The dishes planned for a day in display order.
[[nodiscard]] std::vector<DishInDietDay *> dishesOfDay(const DietDay &day);
/// Numbers the display orders 0, 1, 2, … in the given order.
void renumber(const std::vector<DishInDietDay *> &dishes);

} // namespace kesto
