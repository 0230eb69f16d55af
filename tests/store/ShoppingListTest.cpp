#include "StoreFixture.h"

#include "model/Dish.h"
#include "model/Ingredient.h"
#include "model/PurhaseIngredient.h"

namespace kesto::test
{
namespace
{

struct ShoppingList : StoreFixture
{
    void add(const QString &text)
    {
        platform.clock().advance(1);
        manager().addIngredientToCard(text);
    }
    /// The lines from the top, "name", "name=count" and "name*" for a bought one.
    [[nodiscard]] QStringList lines()
    {
        QStringList texts;
        for (const PurhaseIngredient *line : manager().purhaseIngredients()) {
            QString text = line->ingredient() != nullptr ? line->ingredient()->name() : QStringLiteral("?");
            if (!line->count().isNull())
                text += u'=' + line->count();
            texts.append(text + (line->purchased().value_or(false) ? QStringLiteral("*") : QString()));
        }
        return texts;
    }
    [[nodiscard]] QStringList products()
    {
        QStringList names;
        FetchRequest request;
        request.sortDescriptors = {{"name", true}};
        for (const Ingredient *product : context().fetchOrLog<Ingredient>(request))
            names.append(product->name());
        return names;
    }
    /// A product that a dish lists, in one of the languages.
    void addToDish(const QString &name, bool russian)
    {
        auto &dish = context().insert<Dish>();
        auto &line = context().insert<Ingredient>();
        line.setName(name);
        russian ? line.setDishRU(&dish) : line.setDishENG(&dish);
        ASSERT_TRUE(context().save());
    }
};

TEST(ShoppingListOfTheStore, TakesANameFromEveryText)
{
    const struct
    {
        const char *text;
        const char *name; ///< null: nothing is added
    } cases[] = {
        {"Молоко - 1 л", "Молоко"},
        {"Молоко", "Молоко"},
        {"Ряженка - 1 л - 2", "Ряженка"},
        {"Кока-кола", "Кока-кола"},
        {"Соль -щепотка", "Соль -щепотка"},
        {"  Чай  - 2", "  Чай "},
        {" - 200 г", ""},
        {" -", " -"},
        {"-", nullptr},
        {"- для соуса - 2", nullptr},
        {"🥚 - 3", "🥚"},
        {"חלב - 1", "חלב"},
        {"Две\nстроки", "Две\nстроки"},
    };
    for (const auto &[text, name] : cases) {
        ShoppingList list;
        list.add(QString::fromUtf8(text));
        list.restart();
        const QStringList wanted = name != nullptr ? QStringList{QString::fromUtf8(name)} : QStringList();
        EXPECT_EQ(list.lines(), wanted) << text;
        EXPECT_EQ(list.products(), wanted) << text;
    }
    ShoppingList list;
    const QString longName(20'000, u'я');
    list.add(longName + QStringLiteral(" - 5"));
    list.restart();
    EXPECT_EQ(list.lines(), QStringList{longName});
}

TEST(ShoppingListOfTheStore, KeepsOneLineAName)
{
    ShoppingList list;
    list.add(QStringLiteral("milk - 1 l"));
    list.add(QStringLiteral("salt"));
    EXPECT_EQ(list.lines(), QStringList({QStringLiteral("salt"), QStringLiteral("milk")}));
    PurhaseIngredient *milk = list.manager().purhaseIngredients().back();
    EXPECT_FALSE(milk->purchased().has_value());
    EXPECT_TRUE(milk->count().isNull());
    milk->setCount(QStringLiteral("2"));
    milk->setPurchased(true);
    list.add(QStringLiteral("milk"));
    list.add(QStringLiteral("Milk"));
    list.restart();
    EXPECT_EQ(list.lines(), QStringList({QStringLiteral("Milk"), QStringLiteral("milk=2*"), QStringLiteral("salt")}))
        << "what was bought stays so, and goes to the top";

    // The line is found by the name, whichever product of that name it points to.
    list.addToDish(QStringLiteral("salt"), true);
    list.add(QStringLiteral("salt - a pinch"));
    EXPECT_EQ(list.lines().size(), 3);
    EXPECT_EQ(list.lines().front(), QStringLiteral("salt"));
    for (const char *name : {"a", "b", "c"})
        list.manager().addIngredientToCard(QString::fromLatin1(name)); // while the clock stands still
    list.restart();
    EXPECT_EQ(list.lines().mid(0, 3), QStringList({QStringLiteral("c"), QStringLiteral("b"), QStringLiteral("a")}));
}

TEST(ShoppingListOfTheStore, RemovesTypedProductsAndKeepsThoseOfDishes)
{
    ShoppingList list;
    list.addToDish(QStringLiteral("egg"), true);
    list.addToDish(QStringLiteral("yolk"), false);
    for (const char *name : {"egg", "yolk", "soap"})
        list.add(QString::fromLatin1(name));
    for (PurhaseIngredient *line : list.manager().purhaseIngredients())
        list.manager().removePurchaseIngredientFromCard(*line);
    list.restart();
    EXPECT_TRUE(list.lines().isEmpty());
    EXPECT_EQ(list.products(), QStringList({QStringLiteral("egg"), QStringLiteral("yolk")}));

    for (const char *name : {"egg", "yolk", "soap", "sponge"})
        list.add(QString::fromLatin1(name));
    list.context().insert<PurhaseIngredient>(); // one that has lost its product
    list.manager().removeAllPurchaseIngredientsFromCard();
    list.restart();
    EXPECT_TRUE(list.lines().isEmpty());
    EXPECT_EQ(list.products(), QStringList({QStringLiteral("egg"), QStringLiteral("yolk")}));
    list.manager().removeAllPurchaseIngredientsFromCard();
    EXPECT_TRUE(list.lines().isEmpty()) << "nothing to remove is no harm";
}

} // namespace
} // namespace kesto::test
