#pragma once

#include "app/TourStops.h"

namespace kesto
{

/// The list of products and its legend.
[[nodiscard]] QList<TourStop> productTourStops();
/// A dish in all its ways.
[[nodiscard]] QList<TourStop> dishTourStops();
/// The shopping list, empty and full.
[[nodiscard]] QList<TourStop> cartTourStops();

} // namespace kesto
