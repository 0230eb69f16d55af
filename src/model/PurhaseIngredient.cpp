#include "model/PurhaseIngredient.h"

#include "model/Ingredient.h"

namespace kesto
{

Ingredient *PurhaseIngredient::ingredient() const { return one<"ingredient">(); }

void PurhaseIngredient::setIngredient(Ingredient *value) { setOne<"ingredient">(value); }

} // namespace kesto
