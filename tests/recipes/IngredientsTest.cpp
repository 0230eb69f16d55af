#include "ShoppingFixture.h"

#include "recipes/IngredientsViewController.h"

namespace kesto::test
{
namespace
{

/// A list of "name;kind;periods".
QByteArray plist(std::initializer_list<const char *> products)
{
    QByteArray text("<plist version=\"1.0\"><array>");
    for (const char *product : products) {
        const QList<QByteArray> parts = QByteArray(product).split(';');
        text += "<dict><key>name</key><string>" + parts[0] + "</string><key>Дополнительное поле</key><integer>" +
                parts[1] + "</integer><key>Периоды</key><string>" + parts[2] + "</string></dict>";
    }
    return text + "</array></plist>";
}

struct Products
{
    explicit Products(const char *language = "ru")
    {
        resources.write(
            QStringLiteral("ingredients_ru.plist"),
            plist({"Творог;0;0,1", "Сахар;1;", "Сыр - нежирный;2;3,2", "отруби;3;0,1,2,3", "Соус;3;9,x,1"}));
        resources.write(QStringLiteral("ingredients_en.plist"), plist({"Quark;0;3"}));
        program = std::make_unique<ShoppingFixture>(
            TestPlatform::Options{.resourcesFolder = resources.path(), .language = QString::fromLatin1(language)});
        screen = &program->show(std::make_unique<IngredientsViewController>());
    }
    [[nodiscard]] QStringList shown() const
    {
        QStringList names;
        for (const TableRow &row : screen->table()->section(0).rows)
            names.append(row.title + (row.subtitle.isEmpty() ? QString() : u':' + row.subtitle));
        return names;
    }

    ShopResources resources;
    std::unique_ptr<ShoppingFixture> program;
    IngredientsViewController *screen = nullptr;
};

TEST(Products, AreListedWithTheirKindAndTheLettersOfTheirPhases)
{
    EXPECT_EQ(Products("en").shown(), texts({"Quark:S"}));
    const Products products;
    EXPECT_EQ(products.shown(), texts({"Творог:A k", "Сахар", "Сыр - нежирный:С K", "отруби:A k K С", "Соус:k"}))
        << "in file order";
    const TableRow cheese = products.screen->cellForRow({0, 2});
    EXPECT_EQ(cheese.image, QStringLiteral("ing_cat_2.png"));
    ASSERT_EQ(cheese.badges.size(), 2);
    EXPECT_EQ(cheese.badges[0].color, CoreDataManager::colorForPeriod(3));
    EXPECT_EQ(cheese.badges[1].color, CoreDataManager::colorForPeriod(2));

    for (const auto &[period, letter] : {std::pair(-1, ""), {0, "A"}, {1, "k"}, {2, "K"}, {3, "С"}, {4, ""}})
        EXPECT_EQ(IngredientsViewController::abriviatureForPeriod(period), utf8(letter)) << period;
    products.screen->rightBarButtonItems().constFirst()->trigger();
    EXPECT_EQ(ShoppingFixture::window().popovers().size(), 1) << "the legend";
}

TEST(Products, AreNarrowedToAPhaseAndSearched)
{
    const Products products;
    IngredientsViewController &screen = *products.screen;
    EXPECT_TRUE(screen.periodsScopes());
    const struct
    {
        int scope;
        const char *search;
        QStringList found;
    } cases[] = {
        {1, "", texts({"Творог:A k", "отруби:A k K С"})},
        {2, "", texts({"Творог:A k", "отруби:A k K С", "Соус:k"})},
        {3, "", texts({"Сыр - нежирный:С K", "отруби:A k K С"})},
        {4, "", texts({"Сыр - нежирный:С K", "отруби:A k K С"})},
        {4, "Р", texts({"Сыр - нежирный:С K", "отруби:A k K С"})},
        {1, "С", {}},
        {0, "С", texts({"Сахар", "Сыр - нежирный:С K", "Соус:k"})},
        {0, "нЁжир", texts({"Сыр - нежирный:С K"})},
        {0, "  ", {}},
        {0, "🥚", {}},
        {0, "", texts({"Творог:A k", "Сахар", "Сыр - нежирный:С K", "отруби:A k K С", "Соус:k"})},
    };
    for (const auto &[scope, search, found] : cases) {
        screen.setSearchText(utf8(search));
        screen.updateToPeriod(scope);
        EXPECT_EQ(products.shown(), found) << scope << ' ' << search;
    }
    screen.updateToPeriod(1);
    screen.setSearchText(QStringLiteral("ТВОР"));
    screen.updateToPeriod(3);
    EXPECT_EQ(products.shown(), QStringList()) << "a change of phase searches anew";
}

TEST(Products, GoToTheShoppingListWhenAsked)
{
    const Products products;
    IngredientsViewController &screen = *products.screen;
    screen.selectRow(0, 0);
    EXPECT_EQ(ShoppingFixture::question(), QStringLiteral("Добавить продукт в корзину?: (Отменить), Добавить"));
    EXPECT_EQ(ShoppingFixture::alert()->style(), Alert::Style::ActionSheet);
    ShoppingFixture::answer("Отменить");
    EXPECT_TRUE(products.program->cart().isEmpty());

    screen.setSearchText(QStringLiteral("с"));
    screen.selectRow(0, 1);
    screen.endSearch(); // the list under the question changes
    ShoppingFixture::answer("Добавить");
    EXPECT_EQ(products.program->cart(), QStringList{QStringLiteral("Сыр")}) << "the rules of every addition hold";
}

TEST(Products, AreNoneWhereTheListIsMissing)
{
    const LogCapture log;
    const ShopResources resources;
    ShoppingFixture program({.resourcesFolder = resources.path()});
    EXPECT_EQ(program.show(std::make_unique<IngredientsViewController>()).numberOfRowsInSection(0), 0);
}

} // namespace
} // namespace kesto::test
