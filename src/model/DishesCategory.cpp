#include "model/DishesCategory.h"

#include "model/Dish.h"
#include "model/Lookup.h"
#include "platform/Log.h"

#include <QStringList>

namespace kesto
{

namespace
{

const QStringList &categoriesInOrder()
{
    static const QStringList names{QStringLiteral("Салаты"),
                                   QStringLiteral("Закуски и бутерброды"),
                                   QStringLiteral("Первые блюда"),
                                   QStringLiteral("Вторые блюда"),
                                   QStringLiteral("Несладкая выпечка"),
                                   QStringLiteral("Десерты"),
                                   QStringLiteral("Блины"),
                                   QStringLiteral("Напитки"),
                                   QStringLiteral("Соусы")};
    return names;
}

} // namespace

std::vector<Dish *> DishesCategory::dishes() const { return many<"dishes">(); }

void DishesCategory::addDishes(Dish &object) { add<"dishes">(object); }

void DishesCategory::removeDishes(Dish &object) { remove<"dishes">(object); }

Result<DishesCategory *> DishesCategory::dishCategoryWirhRusName(const QString &rusName, const QString &engName,
                                                                 ManagedObjectContext &inManagedObjectContext)
{
    const Predicate sameName = rusName.isNull() ? attribute("nameRU").isAbsent() : attribute("nameRU") == rusName;
    auto known = lastMatchOrLog<DishesCategory>(inManagedObjectContext, sameName, "dishCategoryWirhRusName");
    if (!known || *known != nullptr)
        return known;
    return &insertWithRusName(rusName, engName, inManagedObjectContext);
}

DishesCategory &DishesCategory::insertWithRusName(const QString &rusName, const QString &engName,
                                                  ManagedObjectContext &context)
{
    log("create category - %@|%@", rusName, engName);
    auto &category = context.insert<DishesCategory>();
    category.setNameRU(rusName);
    category.setNameENG(engName);
    const auto position = categoriesInOrder().indexOf(rusName);
    category.setDisplayOrder(position >= 0 ? static_cast<quint32>(position) : kUnknownOrder);
    return category;
}

} // namespace kesto
