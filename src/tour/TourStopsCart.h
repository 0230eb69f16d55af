#pragma once

#include "tour/TourStops.h"

namespace kesto
{

/// The list of products and its legend.
[[nodiscard]] QList<TourStop> productTourStops();
/// One dish: read, to choose, the user's own, and its full picture.
[[nodiscard]] QList<TourStop> dishTourStops();
/// The shopping list, empty and full.
[[nodiscard]] QList<TourStop> cartTourStops();

} // namespace kesto
