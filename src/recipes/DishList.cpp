#include "recipes/DishList.h"

#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"

#include <algorithm>

namespace kesto
{

QSet<const Dish *> dishesPlannedFor(const DietDay *day)
{
    QSet<const Dish *> dishes;
    if (day == nullptr || day->isDeleted())
        return dishes;
    for (const DishInDietDay *planned : day->dishes())
        dishes.insert(planned->dish());
    return dishes;
}

QVariantList itemsOf(const std::vector<Dish *> &dishes)
{
    QVariantList items;
    items.reserve(static_cast<qsizetype>(dishes.size()));
    for (Dish *dish : dishes)
        items.append(QVariant::fromValue<KeyValueCoding *>(dish));
    return items;
}

Dish *dishOf(const QVariant &item) { return dynamic_cast<Dish *>(item.value<KeyValueCoding *>()); }

QVariantList itemsOfPhase(const QVariantList &items, int phase)
{
    QVariantList found;
    std::copy_if(items.begin(), items.end(), std::back_inserter(found),
                 [phase](const QVariant &item) { return dishOf(item)->belongsToPhase(phase); });
    return found;
}

} // namespace kesto
