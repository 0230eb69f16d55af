#pragma once

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace kesto
{

class BarButtonItem;
class Dish;
class Platform;

/// What a star button does to the dish of its screen.
class FavoriteTarget
{
public:
    virtual ~FavoriteTarget() = default;
    virtual void addToFavorite() = 0;
    virtual void removeFromFavorite() = 0;
};

/// The dishes that the user likes, in the order of their choice. A dish is known by its Russian name in every
/// language, so a favourite survives a new import of the catalogue; a name without a dish stays in the list.
class FavoritesManager
{
public:
    /// The one of the current platform. It reads the stored list when it is made.
    static FavoritesManager &sharedManager();
    explicit FavoritesManager(Platform &platform);

    /// The dishes whose names are found, in stored order, with one statement for all; empty when the list is.
    [[nodiscard]] std::vector<Dish *> favoritiesDishes() const;
    /// Of the stored names, repeats and lost ones included.
    [[nodiscard]] int count() const { return static_cast<int>(dishesIDS_.size()); }
    [[nodiscard]] const QStringList &dishesIDS() const { return dishesIDS_; }

    /// Appends, also what is there already. A dish without a Russian name can't be a favourite.
    void addDishToFavorite(const Dish &dish);
    /// Removes every entry of the dish.
    void removeDishFromFavorite(const Dish &dish);
    [[nodiscard]] bool isDishInFovorite(const Dish &dish) const;
    /// A star that adds the dish or, for a favourite, removes it. The target outlives the button.
    [[nodiscard]] std::unique_ptr<BarButtonItem> favoriteBarButtonItemForItem(const Dish &dish,
                                                                              FavoriteTarget *target) const;
    /// Writes the list into the user defaults and, where there is one, into the cloud store.
    void syncFavs() const;

private:
    Platform &platform_;
    QStringList dishesIDS_;
};

} // namespace kesto
