#include "model/Ingredient.h"

#include "model/Dish.h"
#include "model/Lookup.h"
#include "model/PurhaseIngredient.h"

namespace kesto
{

Dish *Ingredient::dishRU() const { return one<"dishRU">(); }

void Ingredient::setDishRU(Dish *value) { setOne<"dishRU">(value); }

Dish *Ingredient::dishENG() const { return one<"dishENG">(); }

void Ingredient::setDishENG(Dish *value) { setOne<"dishENG">(value); }

std::vector<PurhaseIngredient *> Ingredient::purchaseIngredient() const { return many<"purchaseIngredient">(); }

void Ingredient::addPurchaseIngredient(PurhaseIngredient &object) { add<"purchaseIngredient">(object); }

void Ingredient::removePurchaseIngredient(PurhaseIngredient &object) { remove<"purchaseIngredient">(object); }

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
