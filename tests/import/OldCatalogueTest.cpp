#include "import/ImportFixture.h"
#include "import/SQLiteParser.h"
#include "model/Dish.h"
#include "model/DishesCategory.h"
#include "model/Ingredient.h"
#include "model/PurhaseIngredient.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

using namespace kesto;
using namespace kesto::test;
using testing::Contains;

namespace
{

const QString kDishes = QStringLiteral("dishes");

QByteArray oldRecord(const QByteArray &identifier, const QByteArray &phases = "1234",
                     const QByteArray &russian = "\"А - 1\", \"Б\"", const QByteArray &english = "\"A - 1\", \"B\"")
{
    return "{\"ID\":\"" + identifier + "\",\"Category\":\"Соусы\",\"CategoryEng\":\"Sauces\",\"ProdName\":\"  Соус\"," +
           "\"ProdNameEng\":\"Sauce\",\"ProdTxt\":\" Смешать.\\nПодать.\",\"ProdTxtEng\":\"Mix.\",\"ProdCat\":\"" +
           phases + "\",\"Ingred\":[" + russian + "],\"IngredEng\":[" + english + "]}";
}

class OldCatalogueTest : public ImportFixture
{
protected:
    void write(const QList<QByteArray> &records) { writeResource("dishes.json", "[" + records.join(",") + "]"); }

    QStringList oldParse()
    {
        (void)context();
        LogCapture log;
        EXPECT_TRUE(SQLiteParser::oldParse());
        return log.take();
    }
};

} // namespace

TEST_F(OldCatalogueTest, RecordsAreCutOutOfTheText)
{
    write({oldRecord("x1"), oldRecord("x2", "24", "\"Одна\"", "\"One, with a comma\"")});
    const QVariantList records = SQLiteParser::parsedRecipesFromFile(kDishes).value_or(QVariantList());
    ASSERT_EQ(records.size(), 2);
    const QVariantMap expected{
        {QStringLiteral("ID"), QStringLiteral("x1")},
        {QStringLiteral("Category"), QStringLiteral("Соусы")},
        {QStringLiteral("CategoryEng"), QStringLiteral("Sauces")},
        {QStringLiteral("ProdName"), QStringLiteral("Соус")},
        {QStringLiteral("ProdNameEng"), QStringLiteral("Sauce")},
        {QStringLiteral("ProdTxt"), QStringLiteral("Смешать.\\nПодать.")}, // no unescaping
        {QStringLiteral("ProdTxtEng"), QStringLiteral("Mix.")},
        {QStringLiteral("ProdCat"), QStringLiteral("1234")},
        {QStringLiteral("Ingred"), QStringList{QStringLiteral("А - 1"), QStringLiteral("Б")}},
        {QStringLiteral("IngredEng"), QStringList{QStringLiteral("A - 1"), QStringLiteral("B")}}};
    EXPECT_EQ(records[0].toMap(), expected);
    EXPECT_EQ(records[1].toMap().value(QStringLiteral("IngredEng")).toStringList(),
              QStringList{QStringLiteral("One, with a comma")});
}

TEST_F(OldCatalogueTest, ATextWithoutRecordsHoldsNone)
{
    EXPECT_TRUE(SQLiteParser::parsedRecipesFromFile(QStringLiteral("missing"))->isEmpty());
    for (const QByteArray &text : {QByteArray(), QByteArray("[]"), QByteArray("{\"Name\":\"x\"}"), QByteArray("ID: x"),
                                   oldRecord("x1").replace("Sauce", "\xff\xfe"), oldRecord("x1") + "\xd0"}) {
        writeResource("dishes.json", text);
        const auto records = SQLiteParser::parsedRecipesFromFile(kDishes);
        EXPECT_TRUE(records && records->isEmpty()) << text.right(20).toStdString();
    }
}

TEST_F(OldCatalogueTest, AnIncompleteRecordIsAnErrorAndImportsNothing)
{
    write({oldRecord("x1")});
    (void)oldParse();
    const QStringList before = content();
    for (const char *key : {"Category", "CategoryEng", "ProdName", "ProdNameEng", "ProdTxt", "ProdTxtEng", "ProdCat",
                            "Ingred", "IngredEng"}) {
        SCOPED_TRACE(key);
        QByteArray lacking = oldRecord("x3");
        lacking.replace('"' + QByteArray(key) + "\":", "\"Other\":");
        write({oldRecord("x1", "3"), oldRecord("x2"), lacking});
        EXPECT_FALSE(SQLiteParser::parsedRecipesFromFile(kDishes).has_value());
        EXPECT_THAT(oldParse(),
                    Contains(testing::ResultOf(
                        [](const QString &line) { return line.startsWith(u"dishes: a record is incomplete"); }, true)));
        EXPECT_EQ(content(), before);
    }
    write({oldRecord("x2").replace("  Соус", "   ")});
    EXPECT_FALSE(SQLiteParser::parsedRecipesFromFile(kDishes).has_value()) << "nothing but spaces";
}

TEST_F(OldCatalogueTest, PhasesCountFromZero)
{
    const QList<std::pair<QByteArray, QString>> cases{{"1234", QStringLiteral("0123")}, {"24", QStringLiteral("13")},
                                                      {"4", QStringLiteral("3")},       {"1", QStringLiteral("0")},
                                                      {"4, 3", QStringLiteral("3, 2")}, {"", QString()}};
    for (const auto &[written, stored] : cases) {
        write({oldRecord("x1", written)});
        (void)oldParse();
        EXPECT_EQ(dish("x1").dietPeriod(), stored) << written.toStdString();
    }
}

TEST_F(OldCatalogueTest, ImportsUpdatesAndLeavesThePositionsAbsent)
{
    write({oldRecord("x1")});
    const QStringList lines = oldParse();
    EXPECT_EQ(lines.first(), QStringLiteral("start parsing"));
    EXPECT_EQ(lines.last(), QStringLiteral("end parsing"));
    restart();
    Dish &imported = dish("x1");
    EXPECT_EQ(imported.nameRU(), QStringLiteral("Соус"));
    EXPECT_EQ(imported.nameENG(), QStringLiteral("Sauce"));
    EXPECT_EQ(imported.recipeRU(), QStringLiteral("Смешать.\\nПодать."));
    EXPECT_EQ(imported.recipeNew(), true);
    EXPECT_EQ(imported.dishCategory()->displayOrder(), 8U);
    EXPECT_EQ(outline(imported.ingredientsRU()), "- А - 1, - Б");
    EXPECT_EQ(outline(imported.ingredientsENG()), "- A - 1, - B");

    // The line of the shopping list goes along with an update.
    imported.setRecipeNew(false);
    auto &purchase = context().insert<PurhaseIngredient>();
    purchase.setIngredient(imported.ingredientsRU().back());
    const QString name = purchase.ingredient()->name();
    ASSERT_TRUE(context().save());
    restart();
    write({oldRecord("x1", "34", "\"Б\", \"А - 1\", \"В\"", "\"C\"")});
    (void)oldParse();
    restart();
    const Dish &updated = dish("x1");
    EXPECT_EQ(updated.recipeNew(), false);
    EXPECT_EQ(updated.dietPeriod(), QStringLiteral("23"));
    EXPECT_EQ(outline(updated.ingredientsRU()), "- Б, - А - 1, - В");
    EXPECT_EQ(outline(updated.ingredientsENG()), "- C");
    EXPECT_EQ(context().fetchOrLog<Ingredient>().size(), 4U);
    const Ingredient *bought = context().fetchOrLog<PurhaseIngredient>().front()->ingredient();
    ASSERT_NE(bought, nullptr);
    EXPECT_EQ(bought->name(), name);
    EXPECT_EQ(bought->dishRU(), &updated);
}

TEST_F(OldCatalogueTest, ADishOfTheNewCatalogueIsTheSameDish)
{
    import({record("x1", "Старая", "Old")});
    write({oldRecord("x1")});
    (void)oldParse();
    EXPECT_EQ(dish("x1").nameRU(), QStringLiteral("Соус"));
    EXPECT_EQ(outline(dish("x1").ingredientsRU()), "- А - 1, - Б");
    import({record("x1", "Новая", "New")});
    EXPECT_EQ(outline(dish("x1").ingredientsRU()), "0 Новая");
    EXPECT_EQ(context().fetchOrLog<Ingredient>().size(), 2U);
}
