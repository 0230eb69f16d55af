#pragma once

#include "app/TourStops.h"

namespace kesto
{

[[nodiscard]] QList<TourStop> calculatorTourStops();
/// From the first of them on a diet runs.
[[nodiscard]] QList<TourStop> calendarTourStops();

} // namespace kesto
