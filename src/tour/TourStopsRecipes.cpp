#include "tour/TourStopsRecipes.h"

#include "app/RootViewConrollerViewController.h"
#include "components/BarButtonItem.h"
#include "model/Dish.h"
#include "model/DishesCategory.h"
#include "plan/DietDayDetailViewController.h"
#include "recipes/DishesCategoriesViewController.h"
#include "recipes/DishesViewController.h"
#include "recipes/FavoritesManager.h"
#include "recipes/FavoritesViewController.h"
#include "store/CoreDataManager.h"
#include "tour/TourGuide.h"
#include "tour/TourStopsPlan.h"

namespace kesto
{

namespace
{

constexpr int recipesRow = 3;
constexpr int soups = 2;
constexpr int desserts = 5;

/// The dishes of a category; some have been opened before.
DishesViewController *openCategory(TourGuide &guide, int category)
{
    if (const DishesCategory *shown = CoreDataManager::sharedManager().dishesCategoryForIndex(category)) {
        int i = 0;
        for (Dish *dish : shown->dishes())
            dish->setRecipeNew(++i % 5 == 0 ? std::optional(true) : std::nullopt);
    }
    guide.openRow(recipesRow);
    guide.settle();
    if (auto *categories = guide.screenOf<DishesCategoriesViewController>())
        categories->selectRow(0, category);
    guide.settle();
    return guide.screenOf<DishesViewController>();
}

void attackScope(TourGuide &guide)
{
    if (DishesViewController *screen = openCategory(guide, soups))
        screen->updateToPeriod(1);
}

void periodPopover(TourGuide &guide)
{
    DishesViewController *screen = openCategory(guide, desserts);
    if (screen != nullptr && !screen->rightBarButtonItems().isEmpty())
        screen->rightBarButtonItems().first()->trigger();
}

void addMode(TourGuide &guide)
{
    DietDayDetailViewController *day = openToday(guide);
    if (day == nullptr)
        return;
    day->selectRow(DietDayDetailViewController::AddSection, DietDayDetailViewController::AddDishRow);
    guide.settle();
    if (auto *categories = guide.screenOf<DishesCategoriesViewController>())
        categories->selectRow(0, 0);
    guide.settle();
    if (auto *salads = guide.screenOf<DishesViewController>())
        salads->selectDishButtonTouchedAtIndexPath(1);
}

void addFavourite(TourGuide &guide)
{
    DietDayDetailViewController *day = openToday(guide);
    if (day == nullptr)
        return;
    day->selectRow(DietDayDetailViewController::AddSection, DietDayDetailViewController::AddFavoriteRow);
    guide.settle();
    if (auto *favourites = guide.screenOf<FavoritesViewController>();
        favourites != nullptr && !favourites->content().isEmpty())
        favourites->selectDishButtonTouchedAtIndexPath({0, 0});
}

void favourites(TourGuide &guide)
{
    FavoritesManager &manager = FavoritesManager::sharedManager();
    int i = 0;
    for (Dish *dish : CoreDataManager::sharedManager().managedObjectContext()->fetchOrLog<Dish>()) {
        if (++i % 14 == 0 && !manager.isDishInFovorite(*dish))
            manager.addDishToFavorite(*dish);
    }
    guide.openRow(RootViewConrollerViewController::favoritesRow);
}

} // namespace

QList<TourStop> catalogueTourStops()
{
    return {
        {QStringLiteral("recipes"), [](TourGuide &guide) { guide.openRow(recipesRow); }},
        {QStringLiteral("salads"), [](TourGuide &guide) { (void)openCategory(guide, 0); }},
        {QStringLiteral("soups-of-attack"), attackScope},
        {QStringLiteral("desserts-by-phase"), periodPopover},
        {QStringLiteral("add-dish"), addMode},
    };
}

QList<TourStop> favouriteTourStops()
{
    return {
        {QStringLiteral("favourites"), favourites},
        {QStringLiteral("add-favourite"), addFavourite},
    };
}

} // namespace kesto
