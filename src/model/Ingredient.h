#pragma once

#include "platform/Error.h"
#include "platform/objectgraph/ManagedObject.h"

#include <vector>

namespace kesto
{

class Dish;
class PurhaseIngredient;

/// One ingredient line of a dish, or a product of the shopping list that belongs to no dish.
class Ingredient final : public StoredObject<2, 2, 1>
{
public:
    static constexpr char kTypeTag = 0; ///< its address stands for the class

    Ingredient(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : StoredObject(entity, context, id)
    {
    }
    [[nodiscard]] static EntityDescription description();

    /// The line of exactly this name; a new one is saved at once. An error, which was logged, when it could not be
    /// looked up.
    [[nodiscard]] static Result<Ingredient *> ingredientWithName(const QString &name,
                                                                 ManagedObjectContext &inManagedObjectContext);

    [[nodiscard]] QString name() const { return textAt(0); } ///< the whole line, quantity included
    void setName(const QString &value) { setTextAt(0, value); }
    [[nodiscard]] std::optional<int> displayOrder() const { return integerAt<int>(1); } ///< 0-based within its list
    void setDisplayOrder(std::optional<int> value) { setIntegerAt(1, value); }

    [[nodiscard]] Dish *dishRU() const; ///< set in the Russian list
    void setDishRU(Dish *value);
    [[nodiscard]] Dish *dishENG() const; ///< set in the English list
    void setDishENG(Dish *value);
    [[nodiscard]] std::vector<PurhaseIngredient *> purchaseIngredient() const;
    void addPurchaseIngredient(PurhaseIngredient &object);
    void removePurchaseIngredient(PurhaseIngredient &object);
};

} // namespace kesto
