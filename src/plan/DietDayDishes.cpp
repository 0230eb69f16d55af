// Adding dishes to the day screen.

#include "components/AlertCenter.h"
#include "components/NavigationController.h"
#include "components/PopoverController.h"
#include "components/Window.h"
#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "plan/DayDishes.h"
#include "plan/DietDayDetailViewController.h"
#include "plan/PlanContext.h"
#include "platform/Log.h"
#include "platform/StringTables.h"
#include "recipes/DishDetailViewController.h"
#include "recipes/DishesCategoriesViewController.h"
#include "recipes/FavoritesManager.h"
#include "recipes/FavoritesViewController.h"
#include "store/CoreDataManager.h"

#include <algorithm>

namespace kesto
{

namespace
{

/// The size of the popover with the dishes to choose from. It fits above or below any row, so the day stays visible.
QSizeF choiceSize()
{
    constexpr qreal width = 400;
    constexpr qreal highest = 620;
    constexpr qreal rowAndMargins = 50;
    return {width, std::min(Window::sharedWindow().size().height() / 2 - rowAndMargins, highest)};
}

} // namespace

DishInDietDay *DietDayDetailViewController::plan(Dish &dish)
{
    auto &planned = planContext().insert<DishInDietDay>();
    planned.setDisplayOrder(static_cast<int>(content_.size()));
    planned.setDish(&dish);
    day()->addDishes(planned);
    return &planned;
}

void DietDayDetailViewController::addDish(Dish &dish)
{
    if (day() != nullptr)
        addDishToDietDay(dish, planContext());
}

void DietDayDetailViewController::addDishToDietDay(Dish &dish, ManagedObjectContext &toManagedObjectContext)
{
    createContent();    // the user may have deleted dishes in the list
    renumber(content_); // which leaves gaps in the order
    plan(dish);
    toManagedObjectContext.saveOrKeepChanges();
    createContent();
    reloadSection(DishesSection);
}

void DietDayDetailViewController::autoFillDay()
{
    log(QStringLiteral("start autofilin"));
    if (day() == nullptr || content_.size() >= filledDay)
        return;
    renumber(content_); // a dish deleted elsewhere leaves a gap
    for (Dish *dish : CoreDataManager::sharedManager().autoFilledDishesForPeriod(dietPeriod_)) {
        content_.push_back(plan(*dish));
        insertRow({DishesSection, static_cast<int>(content_.size()) - 1});
    }
    Q_EMIT contentChanged();
    log(QStringLiteral("end autofilin"));
}

void DietDayDetailViewController::openCatalogue()
{
    auto catalogue = std::make_unique<DishesCategoriesViewController>(day(), dietPeriod_);
    catalogue->setDelegate(this);
    openChoice(std::move(catalogue), AddDishRow);
}

void DietDayDetailViewController::openFavorites()
{
    if (FavoritesManager::sharedManager().count() == 0) {
        showAlert({}, localized(QStringLiteral("У вас нет избранных рецептов")));
        return;
    }
    auto favorites = std::make_unique<FavoritesViewController>();
    favorites->setDay(day());
    favorites->setPeriod(dietPeriod_);
    favorites->setIsAddMode(true);
    favorites->setDelegate(this);
    openChoice(std::move(favorites), AddFavoriteRow);
}

void DietDayDetailViewController::openChoice(std::unique_ptr<ViewController> choice, AddRow from)
{
    if (Window::sharedWindow().isTablet())
        presentPopover(std::make_unique<NavigationController>(std::move(choice)),
                       QStringLiteral("row/%1/%2").arg(AddSection).arg(from))
            ->setSizeHint(choiceSize());
    else if (NavigationController *stack = navigationController())
        stack->pushViewController(std::move(choice), true);
}

void DietDayDetailViewController::openDish(Dish &dish)
{
    NavigationController *stack = navigationController();
    if (stack == nullptr)
        return;
    auto detail = std::make_unique<DishDetailViewController>();
    detail->setDish(&dish);
    stack->pushViewController(std::move(detail), true);
}

} // namespace kesto
