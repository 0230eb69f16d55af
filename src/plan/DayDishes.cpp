#include "plan/DayDishes.h"

#include "model/DietDay.h"
#include "model/Dish.h"
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

QString nameOfPlanned(const DishInDietDay &planned)
{
    QString name;
    if (const Dish *dish = planned.dish()) {
        name = dish->displayName();
        for (const QString &other : {dish->nameRU(), dish->nameENG()})
            name = name.isEmpty() ? other : name;
    }
    return name.isEmpty() ? QStringLiteral("-") : name;
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
