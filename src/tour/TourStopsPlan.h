#pragma once

#include "tour/TourStops.h"

namespace kesto
{

class DietDayDetailViewController;

/// The screen of today. Null when no diet has been started.
DietDayDetailViewController *openToday(TourGuide &guide);

[[nodiscard]] QList<TourStop> calculatorTourStops();
/// The first of them starts a diet, which the stops after these rely on.
[[nodiscard]] QList<TourStop> calendarTourStops();

} // namespace kesto
