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

/// Told what a star button does to the dish of its screen.
class FavoriteTarget
{
public:
    virtual ~FavoriteTarget() = default;
    virtual void addToFavorite() = 0;
    virtual void removeFromFavorite() = 0;
};

/// The user's favourite dishes in the order in which they were added. A favourite is stored as its Russian name in
/// every language, so it survives an import of the catalogue. A name without a dish stays in the list.
class FavoritesManager
{
public:
    /// The current platform's manager. The first call reads the stored list.
    static FavoritesManager &sharedManager();
    explicit FavoritesManager(Platform &platform);

    /// The dishes of the stored names that exist, in stored order. Takes one statement, or none for an empty list.
    [[nodiscard]] std::vector<Dish *> favoritiesDishes() const;
    /// The number of stored names, including repeated ones and names without a dish.
    [[nodiscard]] int count() const { return static_cast<int>(dishesIDS_.size()); }
    [[nodiscard]] const QStringList &dishesIDS() const { return dishesIDS_; }

    /// Appends the dish, even if it is in the list. A dish without a Russian name cannot be a favourite.
    void addDishToFavorite(const Dish &dish);
    /// Removes every entry of the dish.
    void removeDishFromFavorite(const Dish &dish);
    [[nodiscard]] bool isDishInFovorite(const Dish &dish) const;
    /// A star button that adds the dish, or removes it if it is a favourite. The target outlives the button.
    [[nodiscard]] std::unique_ptr<BarButtonItem> favoriteBarButtonItemForItem(const Dish &dish,
                                                                              FavoriteTarget *target) const;
    /// Writes the list to the user defaults and to the cloud store if there is one.
    void syncFavs() const;

private:
    Platform &platform_;
    QStringList dishesIDS_;
};

} // namespace kesto
