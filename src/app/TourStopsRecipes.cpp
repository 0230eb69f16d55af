#include "app/TourStopsRecipes.h"

#include "app/RootViewConrollerViewController.h"
#include "app/TourGuide.h"
#include "components/NavigationController.h"
#include "components/Shell.h"
#include "components/Window.h"
#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "model/JornalDay.h"
#include "model/TimeRow.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "recipes/DishesCategoriesViewController.h"
#include "recipes/DishesViewController.h"
#include "recipes/FavoritesManager.h"
#include "store/CoreDataManager.h"

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

/// Today, with two dishes in its journal.
DietDay &dayWithDishes(TourGuide &guide)
{
    ManagedObjectContext &context = *CoreDataManager::sharedManager().managedObjectContext();
    const Calendar &calendar = guide.platform().calendar();
    const QDateTime today = calendar.startOfDay(calendar.dayOf(guide.platform().clock().now()));
    DietDay &day = DietDay::dietDatWithDate(today, context);
    if (day.jornalDay() == nullptr)
        context.insert<JornalDay>().setDay(&day);
    auto &row = context.insert<TimeRow>();
    row.setJoranlDay(day.jornalDay());
    DishesViewController salads(0, &day, 0);
    for (const int i : {1, 2}) {
        auto &placed = context.insert<DishInDietDay>();
        placed.setDish(const_cast<Dish *>(salads.tiles()->tiles()[i].dish));
        placed.setJornalTimeRow(&row);
    }
    return day;
}

void addMode(TourGuide &guide)
{
    auto categories = std::make_unique<DishesCategoriesViewController>(&dayWithDishes(guide), 0);
    DishesCategoriesViewController &screen = *categories;
    guide.window().rootViewController()->presentViewController(
        std::make_unique<NavigationController>(std::move(categories)), false);
    guide.settle();
    screen.selectRow(0, 0);
}

void favourites(TourGuide &guide)
{
    FavoritesManager &manager = FavoritesManager::sharedManager();
    int i = 0;
    for (Dish *dish : CoreDataManager::sharedManager().managedObjectContext()->fetch<Dish>()) {
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

QList<TourStop> favouriteTourStops() { return {{QStringLiteral("favourites"), favourites}}; }

} // namespace kesto
