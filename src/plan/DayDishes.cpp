#include "plan/DayDishes.h"

#include "model/DietDay.h"
#include "model/DishInDietDay.h"
#include "plan/PlanContext.h"
#include "store/CoreDataManager.h"

namespace kesto
{

std::vector<DishInDietDay *> dishesOfDay(const DietDay &day)
{
    FetchRequest request;
    request.predicate = attribute("dietDays") == &day;
    request.sortDescriptors = {{"displayOrder"}};
    request.relationshipKeyPathsForPrefetching = {"dish"};
    return planContext().fetchOrLog<DishInDietDay>(request);
}

void renumber(const std::vector<DishInDietDay *> &dishes)
{
    int place = 0;
    for (DishInDietDay *planned : dishes) {
        if (planned->displayOrder() != place)
            planned->setDisplayOrder(place);
        ++place;
    }
}

} // namespace kesto
