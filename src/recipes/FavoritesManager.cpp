#include "recipes/FavoritesManager.h"

#include "components/BarButtonItem.h"
#include "model/Dish.h"
#include "platform/CloudKeyValueStore.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"

#include <QHash>

namespace kesto
{

FavoritesManager &FavoritesManager::sharedManager() { return Platform::current().shared<FavoritesManager>(); }

FavoritesManager::FavoritesManager(Platform &platform)
    : platform_(platform)
    , dishesIDS_(platform.userDefaults().stringArrayForKey(Keys::kFavoriteDishesKey))
{
}

std::vector<Dish *> FavoritesManager::favoritiesDishes() const
{
    if (dishesIDS_.isEmpty())
        return {};
    FetchRequest request;
    request.predicate = attribute("nameRU").in(std::vector<QString>(dishesIDS_.begin(), dishesIDS_.end()));
    QHash<QString, Dish *> byName;
    for (Dish *dish : CoreDataManager::sharedManager().managedObjectContext()->fetchOrLog<Dish>(request)) {
        if (!byName.contains(dish->nameRU())) // the dish that dishWithRusName() finds
            byName.insert(dish->nameRU(), dish);
    }
    std::vector<Dish *> dishes;
    for (const QString &name : dishesIDS_) {
        if (Dish *dish = byName.value(name))
            dishes.push_back(dish);
    }
    return dishes;
}

void FavoritesManager::addDishToFavorite(const Dish &dish)
{
    if (dish.nameRU().isNull())
        return;
    dishesIDS_.append(dish.nameRU());
    syncFavs();
}

void FavoritesManager::removeDishFromFavorite(const Dish &dish)
{
    dishesIDS_.removeAll(dish.nameRU());
    syncFavs();
}

bool FavoritesManager::isDishInFovorite(const Dish &dish) const
{
    return !dish.nameRU().isNull() && dishesIDS_.contains(dish.nameRU());
}

std::unique_ptr<BarButtonItem> FavoritesManager::favoriteBarButtonItemForItem(const Dish &dish,
                                                                              FavoriteTarget *target) const
{
    if (isDishInFovorite(dish))
        return BarButtonItem::withImage(QStringLiteral("star_fav_icon.png"),
                                        [target] { target->removeFromFavorite(); });
    return BarButtonItem::withImage(QStringLiteral("star_fav_empty_icon.png"), [target] { target->addToFavorite(); });
}

void FavoritesManager::syncFavs() const
{
    platform_.userDefaults().setValue(dishesIDS_, Keys::kFavoriteDishesKey);
    if (CloudKeyValueStore *cloud = CoreDataManager::sharedManager().cloudStore())
        cloud->setObject(dishesIDS_, Keys::kFavoriteDishesKey);
}

} // namespace kesto
