#pragma once

#include "platform/Error.h"

#include <QHash>
#include <QString>

#include <vector>

namespace kesto
{

class Dish;
class Ingredient;
class ManagedObjectContext;
class PurhaseIngredient;

/// Replaces the ingredient lines of dishes during one import. A shopping-list line that points to a removed line is
/// pointed to the dish's new line of the same name. Without one, the removed line stays as a product of its own.
class IngredientReplacement
{
public:
    /// Reads the shopping list.
    [[nodiscard]] static Result<IngredientReplacement> load(ManagedObjectContext &context);

    /// Removes all lines of a dish that has at least one Russian line. The English lines of other dishes stay.
    void removeLines(Dish &dish);
    /// Call this when the dish has its new lines.
    void relinkPurchases(const Dish &dish);

private:
    explicit IngredientReplacement(ManagedObjectContext &context)
        : context_(&context)
    {
    }
    void remove(Ingredient &line);

    ManagedObjectContext *context_;
    QHash<Ingredient *, std::vector<PurhaseIngredient *>> purchases_; ///< by the line that they point to
    std::vector<Ingredient *> kept_; ///< removed from the current dish but still in the shopping list
};

} // namespace kesto
