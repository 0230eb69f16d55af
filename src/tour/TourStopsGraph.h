#pragma once

#include "tour/TourStops.h"

namespace kesto
{

[[nodiscard]] QList<TourStop> graphTourStops();

} // namespace kesto
