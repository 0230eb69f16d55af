#pragma once

#include <QString>

#include <vector>

namespace kesto
{

class DietDay;
class DishInDietDay;

/// The dishes planned for a day in their order.
[[nodiscard]] std::vector<DishInDietDay *> dishesOfDay(const DietDay &day);
/// In the language of the interface, or else in any that the dish has a name in.
[[nodiscard]] QString nameOfPlanned(const DishInDietDay &planned);
/// Makes the places of a day's dishes 0, 1, 2, … as they are given.
void renumber(const std::vector<DishInDietDay *> &dishes);

} // namespace kesto
