#pragma once

#include "tour/TourStops.h"

namespace kesto
{

/// Water, protein and the timer, in all their states.
[[nodiscard]] QList<TourStop> balanceTourStops();

} // namespace kesto
