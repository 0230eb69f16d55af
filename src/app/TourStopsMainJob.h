#pragma once

#include "app/TourStops.h"

namespace kesto
{

/// What the program is for, once from end to end, on the data of a first start: the figures, the start of the diet, a
/// day that is filled and changed, a dish that is liked, and the shopping list. Each stop goes on where the last one
/// ended. At last the program is started again, and complained of when it does not show what it showed before.
[[nodiscard]] QList<TourStop> mainJobTourStops();

} // namespace kesto
