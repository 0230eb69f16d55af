#include "recipes/FavoritesViewController.h"

#include "components/NavigationController.h"
#include "model/Dish.h"
#include "platform/StringTables.h"
#include "recipes/DishDetailViewController.h"
#include "recipes/DishList.h"
#include "recipes/FavoritesManager.h"
#include "util/ImageFiles.h"
#include "util/SKHelpManager.h"

namespace kesto
{

namespace
{

QVariantList dishesIn(const QVariant &section)
{
    return section.toMap().value(QStringLiteral("section content")).toList();
}

} // namespace

FavoritesViewController::FavoritesViewController()
{
    setTitle(localized(QStringLiteral("Избранные рецепты")));
    connect(&choice_, &DishChoice::answered, this, [this] { reloadData(); });
}

void FavoritesViewController::viewDidLoad()
{
    if (choice_.isAddMode())
        setLeftBarButtonItem(BarButtonItem::withImage(QStringLiteral("Plus.png"), [this] { close(); }));
}

void FavoritesViewController::viewWillAppear() { reloadData(); }

QString FavoritesViewController::emptyText() const
{
    return FavoritesManager::sharedManager().count() == 0 ? localized(QStringLiteral("У вас нет избранных рецептов"))
                                                          : localized(QStringLiteral("No recipes"));
}

void FavoritesViewController::reloadData()
{
    std::vector<Dish *> dishes = FavoritesManager::sharedManager().favoritiesDishes();
    Dish::sortByDisplayName(dishes);
    const QVariantList items =
        choice_.isAddMode() && period_ >= 0 ? itemsOfPhase(itemsOf(dishes), period_) : itemsOf(dishes);
    content_ = SKHelpManager::groupedItemsByFirstLetterInNameFromItems(items, localized(QStringLiteral("nameKey")))
                   .value_or(QVariantList());
    included_ = choice_.isAddMode() ? dishesPlannedFor(day_) : QSet<const Dish *>();
    TableViewController::reloadData();
    Q_EMIT contentChanged();
}

bool FavoritesViewController::dayAlreadyIncludeDish(const Dish &dish) const
{
    return dishesPlannedFor(day_).contains(&dish);
}

int FavoritesViewController::numberOfRowsInSection(int section) const
{
    return static_cast<int>(dishesIn(content_[section]).size());
}

QString FavoritesViewController::titleForHeaderInSection(int section) const
{
    return content_[section].toMap().value(QStringLiteral("section name")).toString();
}

TableRow FavoritesViewController::cellForRow(const IndexPath &path) const
{
    const Dish &dish = *dishOf(dishesIn(content_[path.section])[path.row]);
    TableRow row{.kind = TableRow::Kind::Custom,
                 .title = dish.displayName(),
                 .image = dish.dishID().isNull() ? QString() : photoNamed(dish.dishID() + QStringLiteral("_icon")),
                 .cell = QStringLiteral("DishCell")};
    if (dish.recipeNew())
        row.value = localized(QStringLiteral("New"));
    if (choice_.isAddMode()) {
        row.cell = QStringLiteral("DishSelectingCell");
        row.accessory = TableRow::Accessory::CheckButton;
        row.checked = included_.contains(&dish) || choice_.hasTaken(dish);
    }
    return row;
}

Dish *FavoritesViewController::dishAt(const IndexPath &path) const
{
    Dish *dish = dishOf(dishesIn(content_[path.section])[path.row]);
    return dish->isDeleted() ? nullptr : dish;
}

void FavoritesViewController::didSelectRow(const IndexPath &path, const RowId &)
{
    Dish *dish = dishAt(path);
    NavigationController *stack = navigationController();
    if (dish == nullptr || stack == nullptr)
        return;
    const bool inDay = choice_.isAddMode() && dayAlreadyIncludeDish(*dish);
    stack->pushViewController(choice_.screenOf(*dish, inDay, *this), true);
}

void FavoritesViewController::selectDishButtonTouchedAtIndexPath(const IndexPath &path)
{
    if (Dish *dish = dishAt(path))
        choice_.addDish(*dish);
}

} // namespace kesto
