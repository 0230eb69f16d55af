#include "DishesFixture.h"

#include "recipes/DishDetailViewController.h"
#include "recipes/DishesCategoriesViewController.h"
#include "recipes/DishesViewController.h"

#include <QSignalSpy>

namespace kesto::test
{
namespace
{

class DishesTest : public DishesFixture
{
};

TEST_F(DishesTest, SortsACategoryByTheNameInTheLanguage)
{
    DishesViewController screen(0);
    EXPECT_EQ(titles(screen), QStringLiteral("а б в г д е ж"));
    EXPECT_EQ(names(screen.content()), QStringLiteral("а б в г д е ж"));
    EXPECT_EQ(screen.category(), &program.category(0));
    EXPECT_TRUE(screen.periodsScopes());
    EXPECT_FALSE(screen.hasSearchBar());
    EXPECT_EQ(titles(*std::make_unique<DishesViewController>(2)), QStringLiteral("суп"));
    EXPECT_EQ(titles(*std::make_unique<DishesViewController>(7)), QString()) << "a category that is not there";
}

TEST_F(DishesTest, ScopesFilterByTheirPhase)
{
    DishesViewController screen(0);
    QSignalSpy periods(&screen, &SearchBarDietTableViewController::currentPeriodChanged);
    for (const auto &[scope, shown, afterReload] : {std::tuple(0, "а б в г д е ж", "а б в г д е ж"),
                                                    {1, "б ж", "в е ж"},
                                                    {2, "в е ж", "а е"},
                                                    {3, "а е", "д"},
                                                    {4, "а б в г д е ж", ""},
                                                    {2, "в е ж", "а е"},
                                                    {0, "а б в г д е ж", "а б в г д е ж"}}) {
        SCOPED_TRACE(scope);
        screen.updateToPeriod(scope);
        EXPECT_EQ(screen.currentPeriod(), scope);
        EXPECT_EQ(titles(screen).toStdString(), shown);
        EXPECT_EQ(names(screen.filtedItemsForPeriod(scope)).toStdString(), shown);
        // A reload filters by the number of the scope itself.
        screen.reloadData();
        EXPECT_EQ(titles(screen).toStdString(), afterReload);
        EXPECT_EQ(screen.content().size(), 7);
        EXPECT_EQ(names(screen.currentItems()).toStdString(), afterReload);
    }
    EXPECT_EQ(periods.count(), 7);
}

TEST_F(DishesTest, TilesTellPhasesNewsAndPhotos)
{
    Dish &dish = program.dish("ж");
    dish.setDishID(QStringLiteral("salad-7"));
    program.dish("а").setRecipeNew(true);
    program.dish("б").setRecipeNew(false);
    DishesViewController screen(0);
    const auto tile = [&](const char *title) { return screen.tiles()->tiles()[rowOf(screen, title)]; };
    const auto colors = [&screen](const DishTile &of) {
        QStringList list;
        for (int phase = 0; phase < 4; ++phase) {
            if ((of.markers & (1 << phase)) != 0)
                list.append(screen.markerColors()[phase].value<QColor>().name());
        }
        return list.join(u' ');
    };
    EXPECT_EQ(colors(tile("ж")), QStringLiteral("#d23f3f #95cbf9"));
    EXPECT_EQ(tile("ж").phases, QStringLiteral("Атака, Круиз"));
    EXPECT_EQ(colors(tile("е")), QStringLiteral("#95cbf9 #81b74c"));
    EXPECT_EQ(colors(tile("д")), QStringLiteral("#d2bd2f"));
    EXPECT_EQ(colors(tile("г")), QString());
    EXPECT_EQ(tile("ж").picture, QStringLiteral("salad-7.jpg"));
    EXPECT_TRUE(tile("а").picture.isNull()) << "a dish of the user";
    EXPECT_EQ(tile("а").mark, QStringLiteral("Новое"));
    EXPECT_TRUE(tile("б").mark.isNull()) << "the mark goes by the value";
    EXPECT_FALSE(tile("а").checkable);
}

TEST_F(DishesTest, OpeningADishClearsItsNewMarkForGood)
{
    program.dish("б").setRecipeNew(true);
    program.dish("в").setRecipeNew(false);
    program.dish("а").setRecipeNew(true);
    program.save();
    Window::sharedWindow().setDevice(Window::Device::Phone);
    DishesViewController &screen = show(std::make_unique<DishesViewController>(0));
    EXPECT_TRUE(screen.rightBarButtonItems().isEmpty()) << "a phone has the scopes above the grid";
    QSignalSpy changed(screen.tiles(), &QAbstractItemModel::dataChanged);
    screen.selectItem(1);
    ASSERT_EQ(changed.count(), 1) << "only the tile that was touched";
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 1);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 1);
    EXPECT_TRUE(screen.tiles()->tiles()[1].mark.isNull());
    auto *opened = qobject_cast<DishDetailViewController *>(stack->topViewController());
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(opened->dish(), &program.dish("б"));

    stack->popViewController(false);
    screen.selectItem(2);
    stack->popViewController(false);
    screen.selectItem(-1);
    screen.selectItem(7);
    EXPECT_EQ(stack->topViewController(), &screen);
    Window::sharedWindow().setRootViewController(nullptr);
    program.restart();
    EXPECT_EQ(program.dish("б").recipeNew(), std::nullopt);
    EXPECT_EQ(program.dish("в").recipeNew(), std::nullopt) << "a value of false counts as new, too";
    EXPECT_EQ(program.dish("а").recipeNew(), true);
}

TEST_F(DishesTest, DishesOfTheUserComeAndGo)
{
    DishesViewController &screen = show(std::make_unique<DishesViewController>(0));
    auto &made = program.context().insert<Dish>();
    made.setNameRU(QStringLiteral("бб"));
    made.setDietPeriod(QStringLiteral("0, 2"));
    screen.dishAdded(made);
    EXPECT_EQ(made.dishCategory(), &program.category(0));
    EXPECT_FALSE(program.context().hasChanges()) << "saved at once";
    EXPECT_EQ(titles(screen), QStringLiteral("а б бб в г д е ж"));

    screen.updateToPeriod(1);
    EXPECT_EQ(titles(screen), QStringLiteral("б бб ж"));
    screen.selectItem(1);
    program.context().deleteObject(made);
    program.save();
    screen.dishDeleted();
    EXPECT_EQ(names(screen.content()), QStringLiteral("а б в г д е ж"));
    EXPECT_EQ(titles(screen), QStringLiteral("в е ж")) << "a reload goes by the scope's number";

    // Deleted behind its back: gone from the list when it is seen again.
    screen.updateToPeriod(1);
    stack->popViewController(false);
    auto cover = std::make_unique<NavigationController>();
    screen.presentViewController(std::move(cover), false);
    program.context().deleteObject(program.dish("ж"));
    program.context().deleteObject(program.dish("а"));
    screen.selectItem(1);
    EXPECT_EQ(stack->topViewController(), &screen) << "what is gone can't be opened";
    screen.dismissViewController(false);
    EXPECT_EQ(titles(screen), QStringLiteral("б"));
    EXPECT_EQ(names(screen.content()), QStringLiteral("б в г д е"));
    program.save();
    screen.updateToPeriod(0);
    EXPECT_EQ(titles(screen), QStringLiteral("б в г д е"));
}

TEST_F(DishesTest, ADishDeletedOnItsScreenLeavesTheGrid)
{
    program.dish("б").setUserCreated(true);
    program.plan(program.dish("б"));
    program.save();
    DishesViewController &screen = show(std::make_unique<DishesViewController>(0));
    screen.selectItem(rowOf(screen, "б"));
    opened().deleteDish();
    EXPECT_EQ(stack->topViewController(), &screen);
    EXPECT_EQ(titles(screen), QStringLiteral("а в г д е ж"));
    EXPECT_TRUE(program.day().dishes().empty());
    screen.selectItem(1);
    EXPECT_EQ(opened().dish(), &program.dish("в"));
}

TEST_F(DishesTest, CategoriesOpenInTheirOrder)
{
    DetailShell shell;
    DishesCategoriesViewController browse;
    browse.loadViewIfNeeded();
    EXPECT_EQ(browse.title(), QStringLiteral("Рецепты"));
    ASSERT_EQ(browse.table()->numberOfRowsInSection(0), 9);
    for (int row = 0; row < 9; ++row) {
        EXPECT_EQ(browse.table()->rowAt({0, row}).image, QStringLiteral("%1_recipes_icon").arg(row));
        browse.selectRow(0, row);
        auto &grid = dynamic_cast<DishesViewController &>(*shell.detail->topViewController());
        EXPECT_EQ(grid.title(), browse.table()->rowAt({0, row}).title);
        EXPECT_EQ(grid.categoryIndex(), row);
        EXPECT_FALSE(grid.addDishMode());
    }

    AddingDelegate delegate(program, AddingDelegate::Into::Nothing);
    show(std::make_unique<DishesCategoriesViewController>());
    auto made = std::make_unique<DishesCategoriesViewController>(&program.day(), 1);
    DishesCategoriesViewController &adding = *made;
    adding.setDelegate(&delegate);
    stack->pushViewController(std::move(made), false);
    EXPECT_EQ(adding.title(), QStringLiteral("Добавить блюдо"));
    adding.selectRow(0, 0);
    auto &grid = dynamic_cast<DishesViewController &>(*stack->topViewController());
    EXPECT_EQ(titles(grid), QStringLiteral("в е ж"));
    grid.selectDishButtonTouchedAtIndexPath(0);
    EXPECT_EQ(delegate.added, QStringList(QStringLiteral("в")));
    stack->popViewController(false);
    adding.leftBarButtonItems().value(0)->trigger();
    EXPECT_EQ(stack->viewControllers().size(), 1);
}

TEST(Dishes, AreSortedByTheirEnglishNamesInEnglish)
{
    RecipesFixture other({.language = QStringLiteral("en")});
    other.addDish(QStringLiteral("а"), {}, 0, QStringLiteral("Zander"));
    other.addDish(QStringLiteral("б"), {}, 0, QStringLiteral("Apple"));
    other.addDish(QStringLiteral("в"), {}, 0);
    other.addDish(QStringLiteral("г"), {}, 0, QStringLiteral("apple"));
    DishesViewController inEnglish(0);
    EXPECT_EQ(names(inEnglish.content()), QStringLiteral("в б а г")) << "without a name first, capitals before others";
}

} // namespace
} // namespace kesto::test
