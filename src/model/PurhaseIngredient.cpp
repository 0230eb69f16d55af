#include "model/PurhaseIngredient.h"

#include "model/Ingredient.h"
#include "model/Lookup.h"

namespace kesto
{

EntityDescription PurhaseIngredient::description()
{
    return {
        "PurhaseIngredient",
        {{"count", AttributeType::String}, {"date", AttributeType::Date, true}, {"purchased", AttributeType::Boolean}},
        {{.name = "ingredient", .destination = "Ingredient", .inverse = "purchaseIngredient"}},
        &kTypeTag,
        &makeObject<PurhaseIngredient>};
}

Ingredient *PurhaseIngredient::ingredient() const { return static_cast<Ingredient *>(toOne(0)); }

void PurhaseIngredient::setIngredient(Ingredient *value) { setToOne(0, value); }

} // namespace kesto
