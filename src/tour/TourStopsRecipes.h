#pragma once

#include "tour/TourStops.h"

namespace kesto
{

[[nodiscard]] QList<TourStop> catalogueTourStops();
[[nodiscard]] QList<TourStop> favouriteTourStops();

} // namespace kesto
