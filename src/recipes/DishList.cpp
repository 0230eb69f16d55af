#include "recipes/DishList.h"

#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "platform/StringTables.h"
#include "platform/objectgraph/ManagedObjectContext.h"

#include <algorithm>

namespace kesto
{

QString displayName(const Dish &dish) { return dish.valueForKey(localized(QStringLiteral("nameKey"))).toString(); }

void sortByDisplayName(std::vector<Dish *> &dishes)
{
    if (dishes.empty())
        return;
    const int slot = dishes.front()->entity().property(localized(QStringLiteral("nameKey")).toStdString()).slot;
    std::sort(dishes.begin(), dishes.end(), [slot](const Dish *left, const Dish *right) {
        const int order = compareValues(left->attributeAt(slot), right->attributeAt(slot));
        return order != 0 ? order < 0 : left->objectID() < right->objectID();
    });
}

bool belongsToPhase(const Dish &dish, int phase) { return dish.dietPeriod().contains(QString::number(phase)); }

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
                 [phase](const QVariant &item) { return belongsToPhase(*dishOf(item), phase); });
    return found;
}

} // namespace kesto
