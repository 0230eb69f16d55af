#include "recipes/DishesViewController.h"

#include "components/NavigationController.h"
#include "components/Window.h"
#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "model/JornalDay.h"
#include "model/TimeRow.h"
#include "platform/StringTables.h"
#include "recipes/DishDetailViewController.h"
#include "recipes/DishList.h"
#include "recipes/PeriodSelectorViewController.h"
#include "store/CoreDataManager.h"

namespace kesto
{

namespace
{

constexpr int phaseCount = 4;

bool isGone(const QVariant &item) { return dishOf(item)->isDeleted(); }

} // namespace

DishesViewController::DishesViewController(int category)
    : DishesViewController(category, nullptr, 0, false)
{
}

DishesViewController::DishesViewController(int category, DietDay *diedDay, int period)
    : DishesViewController(category, diedDay, period, true)
{
}

DishesViewController::DishesViewController(int category, DietDay *day, int period, bool addDishMode)
    : categoryIndex_(category)
    , category_(CoreDataManager::sharedManager().dishesCategoryForIndex(category))
    , day_(day)
    , period_(period)
{
    choice_.setAddMode(addDishMode);
    connect(&choice_, &DishChoice::answered, this, [this] { refresh(); });
    setPeriodsScopes(true);
    DishesViewController::reloadData();
}

void DishesViewController::viewDidLoad()
{
    if (Window::sharedWindow().isTablet())
        setRightBarButtonItem(BarButtonItem::withImage(QStringLiteral("filter.png"),
                                                       [this] { showPeriodSelector(QStringLiteral("bar/filter")); }));
}

// Another screen may have deleted, changed or added dishes.
void DishesViewController::viewWillAppear()
{
    SearchBarDietTableViewController::viewWillAppear();
    dropDeletedDishes();
    refresh();
}

QString DishesViewController::emptyText() const { return localized(QStringLiteral("No recipes")); }

QVariantList DishesViewController::markerColors() const
{
    QVariantList colors;
    for (int phase = 0; phase < phaseCount; ++phase)
        colors.append(*CoreDataManager::colorForPeriod(phase));
    return colors;
}

void DishesViewController::reloadData()
{
    std::vector<Dish *> dishes;
    if (category_ != nullptr)
        dishes = category_->dishes();
    Dish::sortByDisplayName(dishes);
    setContent(addDishMode() ? itemsOfPhase(itemsOf(dishes), period_) : itemsOf(dishes));
    setCurrentItems(currentPeriod() != 0 ? itemsOfPhase(content(), currentPeriod()) : content());
    DishesViewController::refresh();
}

QVariantList DishesViewController::filtedItemsForPeriod(int period) const
{
    constexpr int stabilizationBit = 4;
    return (period & ~stabilizationBit) != 0 ? itemsOfPhase(content(), period - 1) : content();
}

void DishesViewController::dishAdded(Dish &dish)
{
    if (category_ != nullptr) {
        category_->addDishes(dish);
        dish.managedObjectContext().saveOrKeepChanges();
    }
    reloadData();
}

void DishesViewController::dishDeleted()
{
    endSearch();
    reloadData();
}

bool DishesViewController::dayAlreadyIncludeDish(const Dish &dish) const { return dishesOfJournal().contains(&dish); }

// Takes two statements, whatever the length of the journal and the list.
QSet<const Dish *> DishesViewController::dishesOfJournal() const
{
    QSet<const Dish *> dishes;
    const JornalDay *journal = day_ != nullptr && !day_->isDeleted() ? day_->jornalDay() : nullptr;
    if (journal == nullptr)
        return dishes;
    FetchRequest request;
    request.predicate = attribute("joranlDay") == journal;
    request.relationshipKeyPathsForPrefetching = {"dishesInDietDay"};
    for (const TimeRow *row : journal->managedObjectContext().fetchOrLog<TimeRow>(request)) {
        for (const DishInDietDay *placed : row->dishesInDietDay())
            dishes.insert(placed->dish());
    }
    return dishes;
}

void DishesViewController::refresh()
{
    const QSet<const Dish *> included = addDishMode() ? dishesOfJournal() : QSet<const Dish *>();
    QList<DishTile> tiles;
    tiles.reserve(items().size());
    for (const QVariant &item : items()) {
        const Dish &dish = *dishOf(item);
        tiles.append(tileOf(dish, included.contains(&dish) || choice_.hasTaken(dish)));
    }
    tiles_.setTiles(tiles);
}

DishTile DishesViewController::tileOf(const Dish &dish, bool checked) const
{
    DishTile tile{.dish = &dish, .title = dish.displayName(), .checkable = addDishMode(), .checked = checked};
    if (!dish.dishID().isNull())
        tile.picture = dish.dishID() + QStringLiteral(".jpg");
    if (dish.recipeNew().value_or(false))
        tile.mark = localized(QStringLiteral("New"));
    QStringList phases;
    for (int phase = 0; phase < phaseCount; ++phase) {
        if (!dish.belongsToPhase(phase))
            continue;
        tile.markers |= 1 << phase;
        phases.append(CoreDataManager::periodNameForDietPeriod(phase));
    }
    tile.phases = phases.join(QStringLiteral(", "));
    return tile;
}

void DishesViewController::dropDeletedDishes()
{
    QVariantList all = content();
    if (all.removeIf(isGone) > 0)
        setContent(all);
    QVariantList current = currentItems();
    if (current.removeIf(isGone) > 0)
        setCurrentItems(current);
}

Dish *DishesViewController::dishAt(int row) const
{
    Dish *dish = row >= 0 && row < items().size() ? dishOf(items()[row]) : nullptr;
    return dish != nullptr && !dish->isDeleted() ? dish : nullptr;
}

void DishesViewController::selectItem(int row)
{
    Dish *dish = dishAt(row);
    if (dish == nullptr)
        return;
    auto screen = choice_.screenOf(*dish, addDishMode() && dayAlreadyIncludeDish(*dish), *this);
    if (dish->recipeNew()) {
        dish->setRecipeNew({});
        dish->managedObjectContext().saveOrKeepChanges();
        DishTile tile = tiles_.tiles()[row];
        tile.mark = QString();
        tiles_.setTile(row, tile);
    }
    if (NavigationController *stack = navigationController())
        stack->pushViewController(std::move(screen), true);
}

void DishesViewController::selectDishButtonTouchedAtIndexPath(int row)
{
    if (Dish *dish = dishAt(row))
        choice_.addDish(*dish);
}

std::unique_ptr<ViewController> DishesViewController::makePeriodSelector(int currentPeriod)
{
    return std::make_unique<PeriodSelectorViewController>(currentPeriod, this);
}

} // namespace kesto
