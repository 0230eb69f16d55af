#pragma once

#include <QString>

#include <vector>

namespace kesto
{

class DietDay;
class DishInDietDay;

/// The dishes planned for a day in display order.
[[nodiscard]] std::vector<DishInDietDay *> dishesOfDay(const DietDay &day);
/// The dish's name in the language of the interface, else in the other language, else "-".
[[nodiscard]] QString nameOfPlanned(const DishInDietDay &planned);
/// Numbers the display orders 0, 1, 2, … in the given order.
void renumber(const std::vector<DishInDietDay *> &dishes);

} // namespace kesto
