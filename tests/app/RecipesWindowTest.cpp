#include "app/WindowFixture.h"
#include "components/NavigationController.h"
#include "components/PopoverController.h"
#include "components/Window.h"
#include "model/Dish.h"
#include "platform/StringTables.h"
#include "recipes/DishesCategoriesViewController.h"
#include "recipes/DishesViewController.h"
#include "recipes/FavoritesManager.h"
#include "recipes/FavoritesViewController.h"
#include "store/CoreDataManager.h"

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

namespace kesto::test
{

namespace
{

struct Listening : AddDishDelegate
{
    void addDish(Dish &dish) override { added.append(dish.nameRU()); }
    QStringList added;
};

class RecipesWindowTest : public WindowFixture
{
protected:
    /// After the first start's preparation.
    void startReady(Device device, const QSize &size)
    {
        start(device, size);
        ASSERT_TRUE(person().waitsToSee(QAccessible::Heading, QStringLiteral("Калькулятор веса по Кесто")));
    }
    void present(std::unique_ptr<ViewController> screen)
    {
        program_->window().rootViewController()->presentViewController(
            std::make_unique<NavigationController>(std::move(screen)), false);
    }
    static QString nameOf(const DishTile &tile)
    {
        QStringList parts{tile.title, tile.mark, tile.phases};
        parts.removeAll(QString());
        return parts.join(QStringLiteral(", "));
    }
    static bool tabsTo(const Person &user, const QString &name)
    {
        for (int step = 0; step < 15 && user.focus() != name; ++step)
            user.presses(Qt::Key_Tab);
        return user.focus() == name;
    }
};

const QString salads = QStringLiteral("Салаты");

TEST_F(RecipesWindowTest, BrowsesTheGridByKeys)
{
    startReady(Device::Phone, QSize(390, 844));
    const Person user = person();
    ASSERT_TRUE(user.touches(QAccessible::Button, QStringLiteral("Меню")));
    ASSERT_TRUE(user.touches(QAccessible::ListItem, QStringLiteral("Рецепты блюд")));
    ASSERT_TRUE(user.touches(QAccessible::ListItem, salads));
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, salads));
    ASSERT_TRUE(user.waitsUntilGone(QAccessible::Heading, QStringLiteral("Рецепты"))) << "the menu closes";

    DishesViewController same(0); // what the grid shows
    const QList<DishTile> &tiles = same.tiles()->tiles();
    ASSERT_GT(tiles.size(), 6);
    EXPECT_EQ(tiles[0].mark, QStringLiteral("Новое"));
    ASSERT_TRUE(user.waitsToSee(QAccessible::ListItem, nameOf(tiles[0])));
    ASSERT_TRUE(tabsTo(user, nameOf(tiles[0]))) << user.focus().toStdString();
    for (const auto &[key, tile] : {std::pair(Qt::Key_Right, 1),
                                    {Qt::Key_Down, 3},
                                    {Qt::Key_Left, 2},
                                    {Qt::Key_Up, 0},
                                    {Qt::Key_End, static_cast<int>(tiles.size()) - 1},
                                    {Qt::Key_Home, 0},
                                    {Qt::Key_Down, 2}}) {
        user.presses(key);
        EXPECT_EQ(user.focus().toStdString(), nameOf(tiles[tile]).toStdString());
    }
    user.presses(Qt::Key_Return);
    EXPECT_TRUE(user.waitsUntilGone(QAccessible::Heading, salads));
    user.presses(Qt::Key_Escape);
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, salads));
    DishTile opened = tiles[2];
    opened.mark = QString();
    EXPECT_TRUE(user.waitsToSee(QAccessible::ListItem, nameOf(opened)));

    // The phases, by touch.
    ASSERT_TRUE(user.touches(QAccessible::PageTab, QStringLiteral("Атака")));
    same.updateToPeriod(1);
    ASSERT_GT(tiles.size(), 0);
    EXPECT_TRUE(user.waitsToSee(QAccessible::ListItem, nameOf(tiles[0])));
}

TEST_F(RecipesWindowTest, ATabletBrowsesBesideTheCategories)
{
    startReady(Device::Tablet, QSize(1180, 820));
    const Person user = person();
    ASSERT_TRUE(user.touches(QAccessible::ListItem, QStringLiteral("Рецепты блюд")));
    ASSERT_TRUE(user.touches(QAccessible::ListItem, salads));
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, salads));
    EXPECT_TRUE(user.sees(QAccessible::Heading, QStringLiteral("Рецепты"))) << "the categories stay beside it";
    ASSERT_TRUE(user.touches(QAccessible::Button, localized(QStringLiteral("filter"))));
    ASSERT_TRUE(user.touches(QAccessible::ListItem, QStringLiteral("Консол.")));
    DishesViewController same(0);
    same.updateToPeriod(3);
    EXPECT_TRUE(user.waitsToSee(QAccessible::ListItem, nameOf(same.tiles()->tiles()[0])));
    EXPECT_TRUE(user.waitsUntilGone(QAccessible::ListItem, QStringLiteral("Консол."))) << "the bubble closes";
}

TEST_F(RecipesWindowTest, ABubbleOutOfABubbleLeavesItAsItIs)
{
    startReady(Device::Tablet, QSize(1180, 820));
    const Person user = person();
    Window &window = program_->window();
    auto categories = std::make_unique<DishesCategoriesViewController>(nullptr, 0);
    window.rootViewController()
        ->presentPopover(std::make_unique<NavigationController>(std::move(categories)), {})
        ->setSizeHint({400, 420});
    ASSERT_TRUE(user.touches(QAccessible::ListItem, salads));
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, salads));
    DishesViewController same(0, nullptr, 0);
    const QList<DishTile> &tiles = same.tiles()->tiles();
    ASSERT_GT(tiles.size(), 6);
    ASSERT_TRUE(tabsTo(user, nameOf(tiles[0]))) << user.focus().toStdString();
    user.presses(Qt::Key_End);
    const QString last = nameOf(tiles.constLast());
    ASSERT_EQ(user.focus(), last);
    QQuickItem &view = *program_->view().contentItem();
    const QPointer<QQuickItem> grid(item(
        view, [](const QQuickItem &each) { return each.isVisible() && each.objectName() == QStringLiteral("tiles"); }));
    ASSERT_FALSE(grid.isNull());
    const qreal place = grid->property("contentY").toReal();
    ASSERT_GT(place, 0);

    const QString filter = localized(QStringLiteral("filter"));
    ASSERT_TRUE(user.touches(QAccessible::Button, filter));
    ASSERT_TRUE(user.waitsToSee(QAccessible::ListItem, QStringLiteral("Консол.")));
    EXPECT_EQ(window.popovers().size(), 2);
    ASSERT_FALSE(grid.isNull());
    EXPECT_EQ(grid->property("contentY").toReal(), place);
    const QPointer<QQuickItem> bubble(item(view, [&window](const QQuickItem &each) {
        return each.property("shown").value<PopoverController *>() == window.popovers().constLast();
    }));
    ASSERT_FALSE(bubble.isNull());
    const auto *anchor = bubble->property("anchor").value<QQuickItem *>();
    ASSERT_NE(anchor, nullptr) << "it points at the button in the bubble below";
    EXPECT_EQ(anchor->objectName(), QStringLiteral("bar/filter"));

    user.presses(Qt::Key_Escape);
    EXPECT_TRUE(user.waitsUntilGone(QAccessible::ListItem, QStringLiteral("Консол.")));
    EXPECT_EQ(window.popovers().size(), 1);
    ASSERT_FALSE(grid.isNull());
    EXPECT_EQ(grid->property("contentY").toReal(), place);
    user.presses(Qt::Key_Home); // the keys are back in the bubble below
    EXPECT_NE(user.focus(), last);

    ASSERT_TRUE(user.touches(QAccessible::Button, filter));
    ASSERT_TRUE(user.touches(QAccessible::ListItem, QStringLiteral("Консол.")));
    same.updateToPeriod(3);
    ASSERT_GT(tiles.size(), 0);
    EXPECT_TRUE(user.waitsToSee(QAccessible::ListItem, nameOf(tiles[0])));
    EXPECT_EQ(window.popovers().size(), 1);
    EXPECT_FALSE(grid.isNull());
    user.presses(Qt::Key_Escape); // to the categories, and out of the bubble
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, QStringLiteral("Добавить блюдо")));
    user.presses(Qt::Key_Escape);
    EXPECT_TRUE(window.popovers().isEmpty());
}

TEST_F(RecipesWindowTest, ChoosesDishesByTouchAndByKeys)
{
    startReady(Device::Phone, QSize(390, 844));
    const Person user = person();
    Listening delegate;
    auto categories = std::make_unique<DishesCategoriesViewController>(nullptr, 0);
    categories->setDelegate(&delegate);
    present(std::move(categories));
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, QStringLiteral("Добавить блюдо")));
    ASSERT_TRUE(user.touches(QAccessible::ListItem, salads));
    DishesViewController same(0, nullptr, 0);
    const QList<DishTile> &tiles = same.tiles()->tiles();
    ASSERT_GT(tiles.size(), 1);
    const QString check = QStringLiteral("Добавить в план дня: ");
    ASSERT_TRUE(user.touches(QAccessible::Button, check + tiles[1].title));
    EXPECT_EQ(delegate.added, QStringList(tiles[1].title));
    ASSERT_TRUE(tabsTo(user, nameOf(tiles[0]))) << user.focus().toStdString();
    user.presses(Qt::Key_Space);
    EXPECT_EQ(delegate.added, QStringList({tiles[1].title, tiles[0].title}));
    EXPECT_TRUE(user.sees(QAccessible::Heading, salads)) << "a check opens nothing";

    user.presses(Qt::Key_Escape);
    ASSERT_TRUE(user.touches(QAccessible::Button, QStringLiteral("Закрыть")));
    ASSERT_TRUE(user.waitsUntilGone(QAccessible::Heading, QStringLiteral("Добавить блюдо")));

    // The favourites, likewise.
    const Dish &dish = *tiles[0].dish;
    FavoritesManager::sharedManager().addDishToFavorite(dish);
    auto favourites = std::make_unique<FavoritesViewController>();
    favourites->setIsAddMode(true);
    favourites->setDelegate(&delegate);
    present(std::move(favourites));
    const QString row = dish.nameRU() + QStringLiteral(", Новое");
    ASSERT_TRUE(user.waitsToSee(QAccessible::ListItem, row));
    ASSERT_TRUE(tabsTo(user, row)) << user.focus().toStdString();
    user.presses(Qt::Key_Space);
    EXPECT_EQ(delegate.added.size(), 3);
    ASSERT_TRUE(user.touches(QAccessible::Button, check + dish.nameRU()));
    EXPECT_EQ(delegate.added.size(), 4);
    user.presses(Qt::Key_Return);
    EXPECT_TRUE(user.waitsUntilGone(QAccessible::Heading, QStringLiteral("Избранные рецепты")));
    EXPECT_EQ(delegate.added.size(), 4);
}

} // namespace

} // namespace kesto::test
