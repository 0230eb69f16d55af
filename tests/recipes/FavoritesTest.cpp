#include "RecipesFixture.h"
#include "ShoppingFixture.h"

#include "recipes/DishDetailViewController.h"
#include "recipes/FavoritesManager.h"
#include "recipes/FavoritesViewController.h"

namespace kesto::test
{
namespace
{

FavoritesManager &favorites() { return FavoritesManager::sharedManager(); }

QString favoriteNames()
{
    QStringList list;
    for (const Dish *dish : favorites().favoritiesDishes())
        list.append(dish->nameRU());
    return list.join(u' ');
}

QStringList stored(RecipesFixture &program) { return program.defaults().stringArrayForKey(Keys::kFavoriteDishesKey); }

/// Letters in brackets, then their rows; "*" is a mark of news, "!" a check mark.
QString shown(FavoritesViewController &screen)
{
    QStringList list;
    for (int section = 0; section < screen.table()->numberOfSections(); ++section) {
        list.append(u'[' + screen.table()->section(section).header + u']');
        for (const TableRow &row : screen.table()->section(section).rows)
            list.append(row.title + (row.value.isValid() ? QStringLiteral("*") : QString()) +
                        (row.checked ? QStringLiteral("!") : QString()));
    }
    return list.join(u' ');
}

TEST(FavoritesManager, KeepsTheOrderAndRepeatsAcrossStarts)
{
    RecipesFixture program;
    EXPECT_EQ(favorites().count(), 0);
    EXPECT_TRUE(favorites().favoritiesDishes().empty());
    for (const char *name : {"в", "а", "б"})
        program.addDish(QString::fromUtf8(name), {});
    program.save();
    for (const char *name : {"б", "а", "б", "в"})
        favorites().addDishToFavorite(program.dish(name));
    EXPECT_EQ(favorites().count(), 4);
    EXPECT_EQ(favoriteNames(), QStringLiteral("б а б в"));
    program.restart();
    EXPECT_EQ(favoriteNames(), QStringLiteral("б а б в"));
    favorites().removeDishFromFavorite(program.dish("б"));
    EXPECT_EQ(favoriteNames(), QStringLiteral("а в")) << "every entry goes";
    EXPECT_FALSE(favorites().isDishInFovorite(program.dish("б")));
    program.restart();
    EXPECT_EQ(favoriteNames(), QStringLiteral("а в"));
    EXPECT_TRUE(favorites().isDishInFovorite(program.dish("в")));
}

TEST(FavoritesManager, KnowsADishByItsRussianName)
{
    RecipesFixture program;
    Dish &dish = program.addDish(QStringLiteral("Уха"), {}, 2, QStringLiteral("Fish soup"));
    favorites().addDishToFavorite(dish);
    dish.setNameENG(QStringLiteral("Ukha"));
    dish.setDishID(QStringLiteral("other"));
    EXPECT_EQ(favoriteNames(), QStringLiteral("Уха"));
    dish.setNameRU(QStringLiteral("уха"));
    EXPECT_FALSE(favorites().isDishInFovorite(dish));
    EXPECT_TRUE(favorites().favoritiesDishes().empty()) << "it has another name now";
    EXPECT_EQ(favorites().count(), 1) << "the entry stays";
    program.addDish(QStringLiteral("Уха"), {});
    EXPECT_EQ(favoriteNames(), QStringLiteral("Уха"));
    auto &nameless = program.context().insert<Dish>();
    favorites().addDishToFavorite(nameless);
    EXPECT_EQ(favorites().count(), 1);
    EXPECT_FALSE(favorites().isDishInFovorite(nameless));
}

TEST(FavoritesManager, MirrorsTheListToTheCloudWhileThatIsUsed)
{
    for (const bool use : {true, false}) {
        RecipesFixture program(withCloud());
        program.defaults().setBool(use, Keys::kUseICloudKey);
        program.restart();
        favorites().addDishToFavorite(program.addDish(QStringLiteral("Суп"), {}));
        EXPECT_EQ(stored(program), QStringList(QStringLiteral("Суп")));
        const QVariant mirrored = program.platform.cloudStore().objectForKey(Keys::kFavoriteDishesKey);
        EXPECT_EQ(mirrored.toStringList(), use ? stored(program) : QStringList());

        // What comes from another device waits for the next start.
        program.defaults().setValue(QStringList({QStringLiteral("а"), QStringLiteral("б")}), Keys::kFavoriteDishesKey);
        EXPECT_EQ(favorites().count(), 1);
        program.restart();
        EXPECT_EQ(favorites().count(), 2);
        program.settle();
    }
}

class FavoritesScreenTest : public RecipesWindow
{
protected:
    FavoritesScreenTest()
    {
        for (const auto &[name, phases] : {std::pair("Борщ", "1"),
                                           {"Арбуз", "0, 1"},
                                           {"Ёжики", "1"},
                                           {"блины", "0"},
                                           {"Бульон", "0"},
                                           {"7 трав", "12"}})
            favorites().addDishToFavorite(program.addDish(QString::fromUtf8(name), QString::fromUtf8(phases)));
        program.addDish(QStringLiteral("Щи"), QStringLiteral("0"));
        program.save();
    }
    FavoritesViewController &showToAdd(int period, AddDishDelegate *delegate)
    {
        auto made = std::make_unique<FavoritesViewController>();
        made->setIsAddMode(true);
        made->setDay(&program.day());
        made->setPeriod(period);
        made->setDelegate(delegate);
        return show(std::move(made));
    }
};

TEST_F(FavoritesScreenTest, GroupsByFirstLetter)
{
    program.dish("Борщ").setRecipeNew(false);
    program.dish("Арбуз").setRecipeNew(true);
    FavoritesViewController &screen = show(std::make_unique<FavoritesViewController>());
    EXPECT_EQ(shown(screen), QStringLiteral("[7] 7 трав [Ё] Ёжики [А] Арбуз* [Б] Борщ* Бульон блины"));
    EXPECT_EQ(screen.title(), QStringLiteral("Избранные рецепты"));
    EXPECT_TRUE(screen.leftBarButtonItems().isEmpty());
    const TableRow row = screen.table()->rowAt({3, 0});
    EXPECT_EQ(row.cell, QStringLiteral("DishCell"));
    EXPECT_EQ(row.accessory, TableRow::Accessory::None);
    EXPECT_TRUE(row.image.isNull());

    screen.selectRow(3, 0);
    auto *opened = qobject_cast<DishDetailViewController *>(stack->topViewController());
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(opened->dish(), &program.dish("Борщ"));
    EXPECT_EQ(program.dish("Борщ").recipeNew(), false) << "only the grid clears it";

    // What the dish's screen does shows on return.
    favorites().removeDishFromFavorite(program.dish("Борщ"));
    favorites().addDishToFavorite(program.dish("Щи"));
    program.context().deleteObject(program.dish("Ёжики"));
    stack->popViewController(false);
    EXPECT_EQ(shown(screen), QStringLiteral("[7] 7 трав [А] Арбуз* [Б] Бульон блины [Щ] Щи"));
    program.context().deleteObject(program.dish("Щи"));
    screen.dishDeleted();
    EXPECT_EQ(shown(screen), QStringLiteral("[7] 7 трав [А] Арбуз* [Б] Бульон блины"));
}

TEST_F(FavoritesScreenTest, AnEmptyListSaysSo)
{
    for (const char *name : {"Борщ", "Арбуз", "Ёжики", "блины", "Бульон"})
        favorites().removeDishFromFavorite(program.dish(name));
    program.context().deleteObject(program.dish("7 трав"));
    FavoritesViewController &screen = show(std::make_unique<FavoritesViewController>());
    EXPECT_EQ(shown(screen), QString());
    EXPECT_TRUE(screen.content().isEmpty());
    EXPECT_EQ(screen.emptyText(), QStringLiteral("Здесь пока нет рецептов")) << "one is left that has no dish";
    auto &dish = program.addDish(QStringLiteral("7 трав"), {});
    favorites().removeDishFromFavorite(dish);
    screen.reloadData();
    EXPECT_EQ(screen.emptyText(), QStringLiteral("У вас нет избранных рецептов"));
}

TEST_F(FavoritesScreenTest, AddModeOffersThePhaseAndMarksWhatIsPlanned)
{
    program.plan(program.dish("Бульон"));
    program.placeInJournal(program.dish("Арбуз"));
    AddingDelegate delegate(program, AddingDelegate::Into::Plan);
    FavoritesViewController &screen = showToAdd(0, &delegate);
    EXPECT_EQ(shown(screen), QStringLiteral("[А] Арбуз [Б] Бульон! блины"))
        << "what only the journal has does not count";
    EXPECT_TRUE(screen.dayAlreadyIncludeDish(program.dish("Бульон")));
    EXPECT_FALSE(screen.dayAlreadyIncludeDish(program.dish("Арбуз")));
    const TableRow row = screen.table()->rowAt({1, 0});
    EXPECT_EQ(row.cell, QStringLiteral("DishSelectingCell"));
    EXPECT_EQ(row.accessory, TableRow::Accessory::CheckButton);

    screen.touchAccessory(1, 1);
    EXPECT_EQ(delegate.added, QStringList(QStringLiteral("блины")));
    EXPECT_EQ(shown(screen), QStringLiteral("[А] Арбуз [Б] Бульон! блины!"));
    delegate.into = AddingDelegate::Into::Nothing;
    screen.touchAccessory(0, 0);
    EXPECT_EQ(shown(screen), QStringLiteral("[А] Арбуз [Б] Бульон! блины!")) << "it was refused";

    ASSERT_EQ(screen.leftBarButtonItems().size(), 1);
    EXPECT_EQ(screen.leftBarButtonItems()[0]->image(), QStringLiteral("Plus.png"));
    EXPECT_EQ(shown(showToAdd(2, &delegate)), QStringLiteral("[7] 7 трав"));
    EXPECT_EQ(shown(showToAdd(3, &delegate)), QString());
}

TEST(Favorites, ShowASmallPhotoWhereThereIsOne)
{
    const ShopResources resources;
    resources.write(QStringLiteral("images/a_icon.jpg"), {});
    RecipesFixture program({.resourcesFolder = resources.path()});
    for (const char *name : {"а", "б", "в"})
        favorites().addDishToFavorite(program.addDish(QString::fromUtf8(name), {}));
    program.dish("а").setDishID(QStringLiteral("a"));
    program.dish("б").setDishID(QStringLiteral("b"));
    FavoritesViewController screen;
    screen.loadViewIfNeeded();
    EXPECT_EQ(screen.table()->rowAt({0, 0}).image, QStringLiteral("a_icon.jpg"));
    EXPECT_TRUE(screen.table()->rowAt({1, 0}).image.isNull()) << "no such photo";
    EXPECT_TRUE(screen.table()->rowAt({2, 0}).image.isNull()) << "a dish of the user";
}

} // namespace
} // namespace kesto::test
