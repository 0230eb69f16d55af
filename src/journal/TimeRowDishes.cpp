// How a row of the journal gets its dishes.

#include "components/AlertCenter.h"
#include "components/NavigationController.h"
#include "journal/TimeRowDetailViewController.h"
#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/TimeRow.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "recipes/DishDetailViewController.h"
#include "recipes/FavoritesManager.h"
#include "recipes/FavoritesViewController.h"
#include "recipes/QuickDish.h"
#include "store/CoreDataManager.h"

namespace kesto
{

namespace
{

enum Choice { FromFavorites, QuickDish };

} // namespace

void TimeRowDetailViewController::chooseDish()
{
    Alert sheet;
    sheet.style = Alert::Style::ActionSheet;
    sheet.title = localized(QStringLiteral("Добавить блюдо"));
    sheet.buttons = {{localized(QStringLiteral("Добавить блюдо из избраного"))},
                     {localized(QStringLiteral("Добавить быстрое блюдо"))},
                     {localized(QStringLiteral("Отменить")), Alert::Role::Cancel}};
    sheet.anchor = QStringLiteral("row/0/%1").arg(FirstDishRow + touchedSlot_);
    sheet.context = this;
    sheet.answered = [this](const AlertAnswer &answer) {
        if (answer.isCancel)
            return;
        if (answer.buttonIndex == FromFavorites)
            openFavorites();
        else
            askForQuickDish(this, [this](Dish &dish) { addDish(dish); });
    };
    AlertCenter::sharedCenter().show(std::move(sheet));
}

void TimeRowDetailViewController::openFavorites()
{
    NavigationController *stack = navigationController();
    if (FavoritesManager::sharedManager().count() == 0) {
        showAlert({}, localized(QStringLiteral("У вас нет избранных рецептов")));
        return;
    }
    if (stack == nullptr || dietDay_ == nullptr)
        return;
    auto favorites = std::make_unique<FavoritesViewController>();
    favorites->setDay(dietDay_);
    favorites->setPeriod(
        CoreDataManager::dietPeriodForCalendar(Platform::current().calendar(), dietDay_->date().value_or(QDateTime())));
    favorites->setIsAddMode(true);
    favorites->setDelegate(this);
    stack->pushViewController(std::move(favorites), true);
}

void TimeRowDetailViewController::addDish(Dish &dish)
{
    if (timeRow() == nullptr)
        return;
    addDishToDietDay(dish, timeRow_->managedObjectContext());
    if (NavigationController *stack = navigationController()) // the slot has its dish: the list is of no more use
        stack->popToViewController(this, true);
}

void TimeRowDetailViewController::addDishToDietDay(Dish &dish, ManagedObjectContext &toManagedObjectContext)
{
    if (timeRow() == nullptr || dishInSlot(touchedSlot_) != nullptr)
        return;
    auto &planned = toManagedObjectContext.insert<DishInDietDay>();
    planned.setDisplayOrder(touchedSlot_);
    planned.setDish(&dish);
    timeRow_->addDishesInDietDay(planned);
    changed();
    reloadRow({0, FirstDishRow + touchedSlot_});
}

void TimeRowDetailViewController::openDish(Dish &dish)
{
    NavigationController *stack = navigationController();
    if (stack == nullptr)
        return;
    auto detail = std::make_unique<DishDetailViewController>();
    detail->setDish(&dish);
    stack->pushViewController(std::move(detail), true);
}

} // namespace kesto
