// The store manager's queries and operations on the catalogue.

#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "model/Ingredient.h"
#include "model/Lookup.h"
#include "platform/Platform.h"
#include "platform/PropertyList.h"
#include "store/CoreDataManager.h"

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

/// Makes ingredient lines that are on the shopping list products of their own, so that they outlive their dish.
void keepPurchases(const std::vector<Ingredient *> &lines)
{
    for (Ingredient *line : lines) {
        if (line->purchaseIngredient().empty())
            continue;
        line->setDishRU(nullptr);
        line->setDishENG(nullptr);
    }
}

} // namespace

QVariantList CoreDataManager::dishesForDietPeriod(int period)
{
    FetchRequest request;
    request.sortDescriptors = {{"displayOrder"}};
    request.relationshipKeyPathsForPrefetching = {"dishes"};
    QVariantList sections;
    for (const DishesCategory *category : context_->fetchOrLog<DishesCategory>(request)) {
        std::vector<Dish *> dishes = category->dishes();
        std::erase_if(dishes, [&](const Dish *dish) { return !dish->belongsToPhase(period); });
        if (dishes.empty())
            continue;
        Dish::sortByDisplayName(dishes);
        QVariantList content;
        for (Dish *dish : dishes)
            content.append(QVariant::fromValue<KeyValueCoding *>(dish));
        sections.append(QVariantMap{{QStringLiteral("section name"), category->nameRU()},
                                    {QStringLiteral("section content"), content}});
    }
    return sections;
}

bool CoreDataManager::holdsNoDish()
{
    FetchRequest request;
    request.fetchLimit = 1;
    const auto dishes = managedObjectContext()->fetch<Dish>(request);
    return dishes && dishes->empty();
}

DishesCategory *CoreDataManager::dishesCategoryForIndex(int index)
{
    return lastMatchOrLog<DishesCategory>(*context_, attribute("displayOrder") == index, "dishesCategoryForIndex")
        .value_or(nullptr);
}

void CoreDataManager::deleteDish(Dish &dish)
{
    ManagedObjectContext &context = dish.managedObjectContext();
    if (DishesCategory *category = dish.dishCategory(); category != nullptr)
        category->removeDishes(dish);
    for (DishInDietDay *placed : dish.dishInDietDays())
        context.deleteObject(*placed);
    keepPurchases(dish.ingredientsRU());
    keepPurchases(dish.ingredientsENG());
    context.deleteObject(dish);
    context.saveOrKeepChanges();
}

Result<void> CoreDataManager::saveRecipesToPlist()
{
    FetchRequest request;
    request.sortDescriptors = {{"dishID"}};
    request.relationshipKeyPathsForPrefetching = {"dishCategory", "ingredientsRU", "ingredientsENG"};
    const auto dishes = managedObjectContext()->fetch<Dish>(request);
    if (!dishes)
        return tl::unexpected(dishes.error());
    QVariantList recipes;
    for (const Dish *dish : *dishes) {
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
