#include "tour/TourStopsCart.h"

#include "app/RootViewConrollerViewController.h"
#include "components/AlertCenter.h"
#include "components/Shell.h"
#include "model/Dish.h"
#include "model/DishesCategory.h"
#include "model/Ingredient.h"
#include "model/PurhaseIngredient.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "recipes/CartViewController.h"
#include "recipes/DishDetailViewController.h"
#include "recipes/IngredientsViewController.h"
#include "store/CoreDataManager.h"
#include "tour/TourGuide.h"

#include <iterator>

namespace kesto
{

namespace
{

constexpr int productsRow = 2;
constexpr int cartRow = 8;

ManagedObjectContext &context() { return *CoreDataManager::sharedManager().managedObjectContext(); }

Dish *someDish()
{
    FetchRequest request;
    request.sortDescriptors = {{"dishID", false}}; // the user's have none and come last
    request.fetchLimit = 1;
    const std::vector<Dish *> found = context().fetchOrLog<Dish>(request);
    return found.empty() ? nullptr : found.front();
}

/// A dish that the user made, short enough to be seen whole.
Dish *ownDish()
{
    FetchRequest request;
    request.predicate = attribute("userCreated") == true;
    request.fetchLimit = 1;
    if (const std::vector<Dish *> made = context().fetchOrLog<Dish>(request); !made.empty())
        return made.front();
    const Dish *model = someDish();
    if (model == nullptr)
        return nullptr;
    auto &dish = context().insert<Dish>();
    dish.setNameRU(model->nameRU());
    dish.setNameENG(model->nameENG());
    const auto shortened = [](const QString &recipe) { return recipe.section(QStringLiteral(". "), 0, 2) + u'.'; };
    dish.setRecipeRU(shortened(model->recipeRU()));
    dish.setRecipeENG(shortened(model->recipeENG()));
    dish.setDietPeriod(QStringLiteral("0, 2, 3"));
    dish.setUserCreated(true);
    dish.setDishCategory(model->dishCategory());
    for (const Ingredient *each : model->ingredients()) {
        auto &line = context().insert<Ingredient>();
        line.setName(each->name());
        line.setDisplayOrder(each->displayOrder());
        each->dishRU() != nullptr ? line.setDishRU(&dish) : line.setDishENG(&dish);
    }
    return &dish;
}

void openDish(Dish *dish, bool addMode)
{
    if (dish == nullptr)
        return;
    auto screen = std::make_unique<DishDetailViewController>();
    screen->setAddDishMode(addMode);
    screen->setDish(dish);
    Shell::current()->openDetailViewController(std::move(screen));
}

void openPicture(TourGuide &guide)
{
    openDish(someDish(), false);
    guide.settle();
    if (auto *screen = guide.screenOf<DishDetailViewController>())
        screen->showImageNamed(QStringLiteral("app_icon"));
}

void deleteOwnDish(TourGuide &guide)
{
    openDish(ownDish(), false);
    guide.settle();
    if (auto *screen = guide.screenOf<DishDetailViewController>())
        screen->deleteDishIntro();
}

CartViewController *openCart(TourGuide &guide)
{
    guide.openRow(cartRow);
    guide.settle();
    return guide.screenOf<CartViewController>();
}

/// A list on its way through the shop.
CartViewController *openFullCart(TourGuide &guide)
{
    CoreDataManager &manager = CoreDataManager::sharedManager();
    const Dish *dish = someDish();
    const std::vector<PurhaseIngredient *> before = manager.purhaseIngredients();
    const bool counted = !before.empty() && !before.front()->count().isNull();
    if (dish != nullptr && !counted) {
        for (const Ingredient *line : dish->ingredients())
            manager.addIngredientToCard(line->name());
        const char *const counts[]{"2", "500", "1 / 2"};
        const std::vector<PurhaseIngredient *> lines = manager.purhaseIngredients();
        for (size_t i = 0; i < std::size(counts) && i < lines.size(); ++i)
            lines[i]->setCount(QString::fromLatin1(counts[i]));
        for (size_t i = 1; i < lines.size(); i += 3)
            lines[i]->setPurchased(true);
        context().saveOrKeepChanges();
    }
    return openCart(guide);
}

IngredientsViewController *openProducts(TourGuide &guide)
{
    guide.openRow(productsRow);
    guide.settle();
    return guide.screenOf<IngredientsViewController>();
}

template <class Act>
std::function<void(TourGuide &)> inProducts(Act act)
{
    return [act](TourGuide &guide) {
        if (IngredientsViewController *screen = openProducts(guide))
            act(*screen);
    };
}

template <class Act>
std::function<void(TourGuide &)> inCart(Act act)
{
    return [act](TourGuide &guide) {
        if (CartViewController *screen = openFullCart(guide))
            act(*screen);
    };
}

} // namespace

QList<TourStop> productTourStops()
{
    return {
        {QStringLiteral("products"), [](TourGuide &guide) { (void)openProducts(guide); }},
        {QStringLiteral("products-search"), inProducts([](IngredientsViewController &screen) {
             screen.updateToPeriod(2);
             screen.setSearchText(screen.items().value(0).toMap().value(QStringLiteral("name")).toString().left(3));
         })},
        {QStringLiteral("product-add"), inProducts([](IngredientsViewController &screen) { screen.selectRow(0, 1); })},
        {QStringLiteral("products-legend"),
         inProducts([](IngredientsViewController &screen) { screen.rightBarButtonItems().constFirst()->trigger(); })},
    };
}

QList<TourStop> dishTourStops()
{
    return {
        {QStringLiteral("dish"), [](TourGuide &) { openDish(someDish(), false); }},
        {QStringLiteral("dish-to-choose"), [](TourGuide &) { openDish(someDish(), true); }},
        {QStringLiteral("own-dish"), [](TourGuide &) { openDish(ownDish(), false); }},
        {QStringLiteral("own-dish-delete"), deleteOwnDish},
        {QStringLiteral("full-picture"), openPicture},
    };
}

QList<TourStop> cartTourStops()
{
    return {
        {QStringLiteral("shopping-list"), [](TourGuide &guide) { (void)openFullCart(guide); }},
        {QStringLiteral("shopping-list-editing"), inCart([](CartViewController &screen) { screen.setEditing(true); })},
        {QStringLiteral("own-product"),
         inCart([](CartViewController &screen) { screen.selectRow(CartViewController::AddSection, 0); })},
        {QStringLiteral("clear-shopping-list"), inCart([](CartViewController &screen) { screen.clearCartIntro(); })},
    };
}

} // namespace kesto
