#include "model/DietModel.h"

#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "model/FoodObject.h"
#include "model/Image.h"
#include "model/Ingredient.h"
#include "model/JornalDay.h"
#include "model/PurhaseIngredient.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"

namespace kesto
{

const ManagedObjectModel &dietModel()
{
    static const ManagedObjectModel model("Diet", 1,
                                          {describe<DietDay>(), describe<Dish>(), describe<DishesCategory>(),
                                           describe<Ingredient>(), describe<PurhaseIngredient>(),
                                           describe<DishInDietDay>(), describe<Image>(), describe<JornalDay>(),
                                           describe<TimeRow>(), describe<TimeObject>(), describe<FoodObject>()});
    return model;
}

} // namespace kesto
