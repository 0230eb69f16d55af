#pragma once

#include "app/TourStops.h"

namespace kesto
{

class DietDayDetailViewController;

/// The screen of today, beside the calendar or over it, once a diet runs.
DietDayDetailViewController *openToday(TourGuide &guide);

[[nodiscard]] QList<TourStop> calculatorTourStops();
/// From the first of them on a diet runs.
[[nodiscard]] QList<TourStop> calendarTourStops();

} // namespace kesto
