#include "recipes/FavoritesViewController.h"

#include "components/NavigationController.h"
#include "model/Dish.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "recipes/DishDetailViewController.h"
#include "recipes/DishList.h"
#include "recipes/FavoritesManager.h"
#include "util/SKHelpManager.h"

#include <QFileInfo>
#include <QPointer>

namespace kesto
{

namespace
{

QVariantList dishesIn(const QVariant &section)
{
    return section.toMap().value(QStringLiteral("section content")).toList();
}

/// The small photo of a dish; null when there is none.
QString iconOf(const Dish &dish)
{
    if (dish.dishID().isNull())
        return {};
    const QString name = dish.dishID() + QStringLiteral("_icon") + QStringLiteral(".jpg");
    const bool exists = QFileInfo(Platform::current().resourcesFolder() + QStringLiteral("/images/") + name).isFile();
    return exists ? name : QString();
}

} // namespace

FavoritesViewController::FavoritesViewController() { setTitle(localized(QStringLiteral("Избранные рецепты"))); }

void FavoritesViewController::viewDidLoad()
{
    if (isAddMode_)
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
    sortByDisplayName(dishes);
    const QVariantList items = isAddMode_ ? itemsOfPhase(itemsOf(dishes), period_) : itemsOf(dishes);
    content_ = SKHelpManager::groupedItemsByFirstLetterInNameFromItems(items, localized(QStringLiteral("nameKey")))
                   .value_or(QVariantList());
    included_ = isAddMode_ ? dishesPlannedFor(day_) : QSet<const Dish *>();
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
                 .title = displayName(dish),
                 .image = iconOf(dish),
                 .cell = QStringLiteral("DishCell")};
    if (dish.recipeNew())
        row.value = localized(QStringLiteral("New"));
    if (isAddMode_) {
        row.cell = QStringLiteral("DishSelectingCell");
        row.accessory = TableRow::Accessory::CheckButton;
        row.checked = included_.contains(&dish);
    }
    return row;
}

Dish *FavoritesViewController::dishAt(const IndexPath &path) const
{
    Dish *dish = dishOf(dishesIn(content_[path.section])[path.row]);
    return dish->isDeleted() ? nullptr : dish;
}

void FavoritesViewController::didSelectRow(const IndexPath &path)
{
    Dish *dish = dishAt(path);
    NavigationController *stack = navigationController();
    if (dish == nullptr || stack == nullptr)
        return;
    auto screen = std::make_unique<DishDetailViewController>();
    screen->setDish(dish);
    screen->setDeleteDishDelegate(this);
    if (isAddMode_) {
        screen->setAlreadySelectedInDietDay(dayAlreadyIncludeDish(*dish));
        screen->setDelegate(delegate_);
        screen->setAddDishMode(true);
    }
    stack->pushViewController(std::move(screen), true);
}

void FavoritesViewController::selectDishButtonTouchedAtIndexPath(const IndexPath &path)
{
    Dish *dish = dishAt(path);
    if (!isAddMode_ || dish == nullptr || delegate_ == nullptr)
        return;
    const QPointer<FavoritesViewController> alive(this); // the delegate may close the screens
    delegate_->addDish(*dish);
    if (alive)
        reloadData();
}

} // namespace kesto
