#pragma once

#include "platform/Error.h"
#include "platform/objectgraph/StoredObject.h"

#include <vector>

namespace kesto
{

class Dish;
class PurhaseIngredient;

/// One ingredient line of a dish, or a product of the shopping list that belongs to no dish.
class Ingredient final
    : public StoredObject<
          "Ingredient", Attributes<Attribute<"name", QString, Index::Yes>, Attribute<"displayOrder", int>>,
          Relationships<ToOne<"dishRU", Dish, "ingredientsRU">, ToOne<"dishENG", Dish, "ingredientsENG">,
                        ToMany<"purchaseIngredient", PurhaseIngredient, "ingredient">>>
{
public:
    using StoredObject::StoredObject;

    /// The line of exactly this name; a new one is saved at once. An error, which was logged, when it could not be
    /// looked up.
    [[nodiscard]] static Result<Ingredient *> ingredientWithName(const QString &name,
                                                                 ManagedObjectContext &inManagedObjectContext);

    [[nodiscard]] QString name() const { return get<"name">(); } ///< the whole line, quantity included
    void setName(const QString &value) { set<"name">(value); }
    [[nodiscard]] std::optional<int> displayOrder() const { return get<"displayOrder">(); } ///< 0-based within its list
    void setDisplayOrder(std::optional<int> value) { set<"displayOrder">(value); }

    [[nodiscard]] Dish *dishRU() const; ///< set in the Russian list
    void setDishRU(Dish *value);
    [[nodiscard]] Dish *dishENG() const; ///< set in the English list
    void setDishENG(Dish *value);
    [[nodiscard]] std::vector<PurhaseIngredient *> purchaseIngredient() const;
    void addPurchaseIngredient(PurhaseIngredient &object);
    void removePurchaseIngredient(PurhaseIngredient &object);
};

} // namespace kesto
