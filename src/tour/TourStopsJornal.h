#pragma once

#include "tour/TourStops.h"

namespace kesto
{

/// The day's schedule, the editor of its rows, and their dialogs.
[[nodiscard]] QList<TourStop> jornalTourStops();

} // namespace kesto
