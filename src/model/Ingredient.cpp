#include "model/Ingredient.h"

#include "model/Dish.h"
#include "model/Lookup.h"
#include "model/PurhaseIngredient.h"

namespace kesto
{

EntityDescription Ingredient::description()
{
    return {
        "Ingredient",
        {{"name", AttributeType::String, true}, {"displayOrder", AttributeType::Integer}},
        {{.name = "dishRU", .destination = "Dish", .inverse = "ingredientsRU"},
         {.name = "dishENG", .destination = "Dish", .inverse = "ingredientsENG"},
         {.name = "purchaseIngredient", .destination = "PurhaseIngredient", .inverse = "ingredient", .toMany = true}},
        &kTypeTag,
        &makeObject<Ingredient>};
}

Dish *Ingredient::dishRU() const { return static_cast<Dish *>(toOne(0)); }

void Ingredient::setDishRU(Dish *value) { setToOne(0, value); }

Dish *Ingredient::dishENG() const { return static_cast<Dish *>(toOne(1)); }

void Ingredient::setDishENG(Dish *value) { setToOne(1, value); }

std::vector<PurhaseIngredient *> Ingredient::purchaseIngredient() const { return objectsAt<PurhaseIngredient>(0); }

void Ingredient::addPurchaseIngredient(PurhaseIngredient &object) { addToMany(0, &object); }

void Ingredient::removePurchaseIngredient(PurhaseIngredient &object) { removeFromMany(0, &object); }

Result<Ingredient *> Ingredient::ingredientWithName(const QString &name, ManagedObjectContext &inManagedObjectContext)
{
    auto known = lastMatchOrLog<Ingredient>(inManagedObjectContext, attribute("name") == name, "ingredientWithName");
    if (!known || *known != nullptr)
        return known;
    auto &ingredient = inManagedObjectContext.insert<Ingredient>();
    ingredient.setName(name);
    inManagedObjectContext.saveOrKeepChanges();
    return &ingredient;
}

} // namespace kesto
