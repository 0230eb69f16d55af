// What the store manager answers about the catalogue.

#include "model/Dish.h"
#include "model/DishesCategory.h"
#include "model/Ingredient.h"
#include "model/Lookup.h"
#include "platform/Platform.h"
#include "platform/PropertyList.h"
#include "platform/StringTables.h"
#include "store/CoreDataManager.h"

#include <algorithm>

namespace kesto
{

namespace
{

QVariantList names(const std::vector<Ingredient *> &lines)
{
    QVariantList list;
    for (const Ingredient *line : lines)
        list.append(line->name());
    return list;
}

} // namespace

QVariantList CoreDataManager::dishesForDietPeriod(int period)
{
    FetchRequest request;
    request.sortDescriptors = {{"displayOrder"}};
    request.relationshipKeyPathsForPrefetching = {"dishes"};
    const QString digit = QString::number(period);
    const int nameSlot = context_->entityOf<Dish>().property(localized(QStringLiteral("nameKey")).toStdString()).slot;
    QVariantList sections;
    for (const DishesCategory *category : context_->fetch<DishesCategory>(request)) {
        std::vector<Dish *> dishes = category->dishes();
        std::erase_if(dishes, [&](const Dish *dish) { return !dish->dietPeriod().contains(digit); });
        if (dishes.empty())
            continue;
        std::stable_sort(dishes.begin(), dishes.end(), [nameSlot](const Dish *left, const Dish *right) {
            return compareValues(left->attributeAt(nameSlot), right->attributeAt(nameSlot)) < 0;
        });
        QVariantList content;
        for (Dish *dish : dishes)
            content.append(QVariant::fromValue<KeyValueCoding *>(dish));
        sections.append(QVariantMap{{QStringLiteral("section name"), category->nameRU()},
                                    {QStringLiteral("section content"), content}});
    }
    return sections;
}

DishesCategory *CoreDataManager::dishesCategoryForIndex(int index)
{
    return lastMatch<DishesCategory>(*context_, attribute("displayOrder") == index);
}

bool CoreDataManager::saveRecipesToPlist()
{
    FetchRequest request;
    request.sortDescriptors = {{"dishID"}};
    request.relationshipKeyPathsForPrefetching = {"dishCategory", "ingredientsRU", "ingredientsENG"};
    QVariantList recipes;
    for (const Dish *dish : context_->fetch<Dish>(request)) {
        QVariantMap recipe{{QStringLiteral("ingredientsRU"), names(dish->ingredientsRU())},
                           {QStringLiteral("ingredientsENG"), names(dish->ingredientsENG())}};
        const auto put = [&recipe](const char *key, const QString &text) {
            if (!text.isNull()) // a property list has no absent values
                recipe.insert(QString::fromLatin1(key), text);
        };
        put("nameRU", dish->nameRU());
        put("nameENG", dish->nameENG());
        put("dietPeriod", dish->dietPeriod());
        put("dishID", dish->dishID());
        put("recipeENG", dish->recipeENG());
        put("recipeRU", dish->recipeRU());
        if (const DishesCategory *category = dish->dishCategory()) {
            put("catRU", category->nameRU());
            put("catENG", category->nameENG());
        }
        recipes.append(recipe);
    }
    return PropertyList::write(recipes, platform_.documentsFolder() + QStringLiteral("/recipes.plist"));
}

} // namespace kesto
