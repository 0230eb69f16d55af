#pragma once

#include <QHash>
#include <QString>

#include <vector>

namespace kesto
{

class Dish;
class Ingredient;
class ManagedObjectContext;
class PurhaseIngredient;

/// Takes the old ingredient lines off the dishes of one import. A shopping-list line that pointed to a removed line is
/// pointed to the new line of the same name of that dish, or keeps the old one as a product of its own.
class IngredientReplacement
{
public:
    explicit IngredientReplacement(ManagedObjectContext &context);

    /// Removes all lines of a dish when it has at least one Russian line; else it leaves the English ones where they
    /// are.
    void removeLines(Dish &dish);
    /// To be called when the dish has its new lines.
    void relinkPurchases(const Dish &dish);

private:
    void remove(Ingredient &line);

    ManagedObjectContext &context_;
    QHash<Ingredient *, std::vector<PurhaseIngredient *>> purchases_; ///< those that point to a line, read once
    std::vector<Ingredient *> kept_; ///< removed from the dish at hand but still in the shopping list
};

} // namespace kesto
