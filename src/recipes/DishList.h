#pragma once

#include <QSet>
#include <QVariantList>

#include <vector>

namespace kesto
{

class DietDay;
class Dish;

// Helpers of all lists of dishes.

/// The dishes that are planned for a day; none for a null or deleted day.
[[nodiscard]] QSet<const Dish *> dishesPlannedFor(const DietDay *day);

/// Converts dishes to the items of a list, and back.
[[nodiscard]] QVariantList itemsOf(const std::vector<Dish *> &dishes);
[[nodiscard]] Dish *dishOf(const QVariant &item);
/// The items whose dish belongs to a phase.
[[nodiscard]] QVariantList itemsOfPhase(const QVariantList &items, int phase);

} // namespace kesto
