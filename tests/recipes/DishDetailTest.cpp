#include "ShoppingFixture.h"

#include "components/PopoverController.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "model/JornalDay.h"
#include "model/TimeRow.h"
#include "recipes/DishDetailViewController.h"
#include "recipes/ImageViewController.h"

namespace kesto::test
{
namespace
{

struct DishScreen : ShoppingFixture, AddDishDelegate, DeleteDishDelegate
{
    explicit DishScreen(TestPlatform::Options options = {})
        : ShoppingFixture(std::move(options))
        , dish(context().insert<Dish>())
    {
        dish.setNameRU(QStringLiteral("Суп"));
        dish.setNameENG(QStringLiteral("Soup"));
        dish.setRecipeRU(QStringLiteral("Нарезать. Сварить. Подать."));
        dish.setRecipeENG(QStringLiteral("Mix. Bake. Serve."));
        dish.setDietPeriod(QStringLiteral("0, 3"));
        dish.setDishCategory(
            DishesCategory::dishCategoryWirhRusName(QStringLiteral("Первые блюда"), {}, context()).value());
        for (const char *line : {"- для бульона", "вода - 1 л", "соль"})
            addLine(line, true);
        addLine("water - 1 l", false);
        EXPECT_TRUE(context().save());
    }
    void addLine(const char *name, bool russian)
    {
        auto &line = context().insert<Ingredient>();
        line.setName(utf8(name));
        line.setDisplayOrder(static_cast<int>(dish.ingredientsRU().size()));
        russian ? line.setDishRU(&dish) : line.setDishENG(&dish);
    }
    DishDetailViewController &open(bool addMode = false, bool selected = false)
    {
        auto made = std::make_unique<DishDetailViewController>();
        made->setDelegate(this);
        made->setDeleteDishDelegate(this);
        made->setAlreadySelectedInDietDay(selected);
        if (addMode)
            made->setAddDishMode(true);
        made->setDish(&dish);
        screen = &show(std::move(made));
        return *screen;
    }
    [[nodiscard]] QStringList buttons() const { return images(screen->rightBarButtonItems()); }
    void touch(int button) { screen->rightBarButtonItems().at(button)->trigger(); }
    [[nodiscard]] bool isOpen() const { return navigation->viewControllers().size() > 1; }

    void addDish(Dish &added) override { addedDishes.append(added.nameRU()); }
    void dishDeleted() override
    {
        ++deletions;
        EXPECT_TRUE(isOpen()) << "the list hears first";
        EXPECT_EQ(context().fetchOrLog<Dish>().size(), 0U);
    }

    Dish &dish;
    DishDetailViewController *screen = nullptr;
    QStringList addedDishes;
    int deletions = 0;
};

QStringList badgeTexts(const DishDetailViewController &screen)
{
    QStringList texts;
    for (const QVariant &badge : screen.badges())
        texts.append(badge.toMap().value(QStringLiteral("text")).toString());
    return texts;
}

TEST(DishDetail, ShowsTheDishInTheLanguage)
{
    for (const bool russian : {true, false}) {
        DishScreen at({.language = russian ? QStringLiteral("ru") : QStringLiteral("en")});
        const DishDetailViewController &screen = at.open();
        EXPECT_EQ(screen.name(), russian ? QStringLiteral("Суп") : QStringLiteral("Soup"));
        EXPECT_EQ(screen.ingredients(), russian ? QStringList({utf8("- для бульона"), utf8("вода - 1 л"), utf8("соль")})
                                                : QStringList{QStringLiteral("water - 1 l")});
        EXPECT_EQ(screen.recipe(), russian ? QStringLiteral("Нарезать.\n\nСварить.\n\nПодать.")
                                           : QStringLiteral("Mix.\n\nBake.\n\nServe."));
        EXPECT_TRUE(screen.picture().isNull());
        EXPECT_EQ(screen.categoryPicture(), QStringLiteral("2_recipes_icon"));
        EXPECT_TRUE(screen.deleteTitle().isNull());
    }
}

TEST(DishDetail, MakesABadgeOfEveryPieceOfThePhases)
{
    const QString attack = QStringLiteral("Атака");
    const QString stabilization = QStringLiteral("Стабилизация");
    const struct
    {
        QString periods;
        QStringList badges;
    } cases[] = {
        {QStringLiteral("0, 3"), {attack, stabilization}},
        {QStringLiteral("3, 0"), {stabilization, attack}},
        {QStringLiteral("1"), {QStringLiteral("Круиз")}},
        {QStringLiteral("x, 2"), {attack, QStringLiteral("Консолидация")}},
        {QStringLiteral("7"), {QString()}},
        {QStringLiteral(""), {attack}},
        {QString(), {}},
    };
    for (const auto &[periods, badges] : cases) {
        DishScreen at;
        at.dish.setDietPeriod(periods);
        EXPECT_EQ(badgeTexts(at.open()), badges) << periods.toStdString();
    }
    DishScreen at;
    at.open();
    EXPECT_EQ(at.screen->badges()[1].toMap().value(QStringLiteral("color")).value<QColor>(),
              CoreDataManager::colorForPeriod(3));
}

TEST(DishDetail, SplitsTheRecipeAtFullStopsAndNowhereElse)
{
    for (const auto &[recipe, shown] : {std::pair("One", "One"),
                                        {"One. Two", "One.\n\nTwo"},
                                        {"1.5 g.Mix. ", "1.5 g.Mix.\n\n"},
                                        {". A", ".\n\nA"},
                                        {"Wait... Go.", "Wait...\n\nGo."},
                                        {"", ""}}) {
        DishScreen at;
        at.dish.setRecipeRU(utf8(recipe));
        EXPECT_EQ(at.open().recipe(), utf8(shown)) << recipe;
    }
}

TEST(DishDetail, BuildsOnce)
{
    DishScreen at;
    DishDetailViewController &screen = at.open();
    int builds = 0;
    QObject::connect(&screen, &DishDetailViewController::contentChanged, [&] { ++builds; });
    at.dish.setNameRU(QStringLiteral("Борщ"));
    screen.setDish(&at.dish);
    at.navigation->pushViewController(std::make_unique<ViewController>(), false);
    at.navigation->popViewController(false);
    EXPECT_EQ(builds, 0);
    EXPECT_EQ(screen.name(), QStringLiteral("Суп"));
}

TEST(DishDetail, TogglesTheFavouriteAtOnce)
{
    DishScreen at;
    at.open();
    const QString cart = QStringLiteral("cartBBI.png");
    const QStringList not_{QStringLiteral("star_fav_empty_icon.png"), cart};
    const QStringList favourite{QStringLiteral("star_fav_icon.png"), cart};
    EXPECT_EQ(at.buttons(), not_);
    at.touch(0);
    EXPECT_EQ(at.buttons(), favourite);
    EXPECT_EQ(FavoritesManager::sharedManager().count(), 1);
    at.touch(0);
    EXPECT_EQ(at.buttons(), not_);
    EXPECT_EQ(FavoritesManager::sharedManager().count(), 0);

    at.navigation->pushViewController(std::make_unique<ViewController>(), false);
    FavoritesManager::sharedManager().addDishToFavorite(at.dish);
    at.navigation->popViewController(false);
    EXPECT_EQ(at.buttons(), favourite);
}

TEST(DishDetail, PutsTheIngredientsOnTheShoppingList)
{
    DishScreen at;
    at.open();
    for (int time = 0; time < 2; ++time) {
        at.touch(1);
        ASSERT_NE(ShoppingFixture::alert(), nullptr);
        EXPECT_EQ(ShoppingFixture::question(), QStringLiteral("Блюдо было успешно добавлено в корзину: ОК"));
        EXPECT_TRUE(ShoppingFixture::alert()->message().isNull());
        ShoppingFixture::answer("ОК");
        QStringList cart = at.cart();
        cart.sort();
        EXPECT_EQ(cart, QStringList({utf8("вода"), utf8("соль")})) << "the remark is none, and no name comes twice";
    }
    for (Ingredient *line : at.dish.ingredientsRU())
        at.dish.removeIngredientsRU(*line);
    at.addLine("", true);
    at.touch(1);
    EXPECT_NE(ShoppingFixture::alert(), nullptr) << "also without an ingredient";
    EXPECT_EQ(at.cart().size(), 2);
}

TEST(DishDetail, HandsTheDishOverInAddMode)
{
    for (const bool selected : {false, true}) {
        DishScreen at;
        at.open(true, selected);
        EXPECT_EQ(at.buttons(), QStringList{selected ? QStringLiteral("checkmarkButton_selected.png")
                                                     : QStringLiteral("checkmarkButton.png")});
        EXPECT_EQ(at.screen->rightBarButtonItems()[0]->highlightedImage(),
                  QStringLiteral("checkmarkButton_higlihted.png"));
        at.touch(0);
        at.touch(0);
        EXPECT_EQ(at.addedDishes, QStringList({QStringLiteral("Суп"), QStringLiteral("Суп")}));
        at.screen->setAlreadySelectedInDietDay(!selected);
        EXPECT_EQ(at.buttons().size(), 1) << "whatever comes first";
        at.screen->setDelegate(nullptr);
        at.touch(0);
    }
    DishScreen at;
    at.open().setAddDishMode(true);
    EXPECT_EQ(at.buttons(), QStringList{QStringLiteral("checkmarkButton.png")}) << "also after the dish was set";
}

TEST(DishDetail, DeletesADishOfTheUserWithItsPlacesAndNothingElse)
{
    DishScreen at;
    at.dish.setUserCreated(false); // any value counts
    auto &row = at.context().insert<TimeRow>();
    auto &journal = at.context().insert<JornalDay>();
    journal.addTimeRows(row);
    for (int i = 0; i < 3; ++i) {
        auto &planned = at.context().insert<DishInDietDay>();
        planned.setDish(&at.dish);
        if (i == 0)
            row.addDishesInDietDay(planned);
        else {
            DietDay *day = DietDay::dietDatWithDate(at.platform.date(2024, 3, i), at.context()).value();
            day->addDishes(planned);
            day->setJornalDay(&journal);
        }
    }
    FavoritesManager::sharedManager().addDishToFavorite(at.dish);
    at.open();
    at.screen->addToCart();
    ShoppingFixture::answer("ОК");
    ASSERT_EQ(at.screen->deleteTitle(), QStringLiteral("Удалить блюдо"));

    at.screen->deleteDishIntro();
    EXPECT_EQ(ShoppingFixture::question(),
              QStringLiteral("Вы действительно хотите удалить ваше блюдо?: (Отменить), Удалить блюдо!"));
    EXPECT_EQ(ShoppingFixture::alert()->style(), Alert::Style::ActionSheet);
    ShoppingFixture::answer("Отменить");
    EXPECT_TRUE(at.isOpen());
    EXPECT_EQ(at.context().fetchOrLog<Dish>().size(), 1U);

    at.screen->deleteDishIntro();
    ShoppingFixture::answer("Удалить блюдо");
    EXPECT_EQ(at.deletions, 1);
    EXPECT_FALSE(at.isOpen());
    at.window().setRootViewController(nullptr);
    ShoppingFixture::turnEventLoop();
    at.restart();
    EXPECT_EQ(at.context().fetchOrLog<Dish>().size(), 0U);
    EXPECT_EQ(at.context().fetchOrLog<DishInDietDay>().size(), 0U);
    EXPECT_EQ(at.context().fetchOrLog<DietDay>().size(), 2U) << "the days stay";
    EXPECT_EQ(at.context().fetchOrLog<TimeRow>().size(), 1U);
    EXPECT_TRUE(DishesCategory::dishCategoryWirhRusName(QStringLiteral("Первые блюда"), {}, at.context())
                    .value()
                    ->dishes()
                    .empty());
    EXPECT_EQ(FavoritesManager::sharedManager().count(), 1) << "favourites are not touched";
    QStringList cart = at.cart();
    cart.sort();
    EXPECT_EQ(cart, QStringList({utf8("вода"), utf8("соль")})) << "neither is the shopping list";
    at.manager().removeAllPurchaseIngredientsFromCard();
    EXPECT_EQ(at.context().fetchOrLog<Ingredient>().size(), 0U) << "what was of the dish is a typed product now";
}

TEST(DishDetail, SurvivesTheEndOfItsDish)
{
    for (const bool addMode : {false, true}) {
        DishScreen at;
        DishDetailViewController &screen = at.open(addMode);
        at.context().deleteObject(at.dish);
        ASSERT_TRUE(at.context().save());
        for (int button = 0; button < screen.rightBarButtonItems().size(); ++button)
            at.touch(button);
        screen.addToFavorite();
        screen.removeFromFavorite();
        screen.showImage();
        EXPECT_EQ(ShoppingFixture::alert(), nullptr);
        EXPECT_TRUE(at.addedDishes.isEmpty());
        EXPECT_EQ(screen.name(), QStringLiteral("Суп")) << "it can still be read";
        at.navigation->pushViewController(std::make_unique<ViewController>(), false);
        at.navigation->popViewController(false);
        if (!addMode) {
            EXPECT_EQ(at.buttons(), QStringList());
        }
        screen.deleteDish();
        EXPECT_FALSE(at.isOpen());
        EXPECT_EQ(at.deletions, 0);
    }
}

TEST(DishDetail, OpensItsPhotoWhereThereIsOne)
{
    const ShopResources resources;
    resources.write(QStringLiteral("images/sou01.jpg"), "a photo");
    resources.write(QStringLiteral("secret.jpg"), "not a picture of a dish");
    for (const char *none : {"", "sou02", "../secret", ".", "images/sou01"}) {
        DishScreen at({.resourcesFolder = resources.path()});
        at.dish.setDishID(utf8(none));
        at.open();
        EXPECT_TRUE(at.screen->picture().isNull()) << none;
        at.screen->showImage();
        EXPECT_EQ(at.navigation->viewControllers().size(), 2);
    }
    DishScreen at({.resourcesFolder = resources.path()});
    at.dish.setDishID(QStringLiteral("sou01"));
    at.open();
    EXPECT_EQ(at.screen->picture(), QStringLiteral("sou01.jpg"));
    at.screen->showImage();
    auto *image = qobject_cast<ImageViewController *>(at.navigation->topViewController());
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->picture(), QStringLiteral("sou01.jpg"));
    EXPECT_EQ(image->title(), QStringLiteral("Суп"));
    EXPECT_TRUE(at.window().back()) << "as by Escape";
    EXPECT_EQ(at.navigation->topViewController(), at.screen);

    at.window().setSize({820, 1180});
    at.screen->showImage();
    ASSERT_EQ(at.window().popovers().size(), 1);
    const PopoverController &popover = *at.window().popovers()[0];
    EXPECT_EQ(popover.anchor(), QStringLiteral("dish/image"));
    EXPECT_NE(qobject_cast<ImageViewController *>(popover.content()), nullptr);
    EXPECT_TRUE(at.window().back());
    EXPECT_EQ(at.window().popovers().size(), 0);
    EXPECT_TRUE(at.isOpen());
}

} // namespace
} // namespace kesto::test
