#include "import/SQLiteParser.h"
#include "import/ImportFixture.h"
#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "model/Image.h"
#include "model/Ingredient.h"
#include "model/PurhaseIngredient.h"
#include "objectgraph/StatementLog.h"
#include "platform/PropertyList.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

#include <QRegularExpression>

using namespace kesto;
using namespace kesto::test;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

namespace
{

class SQLiteParserTest : public ImportFixture
{
protected:
    /// A shopping-list line for a line of a dish.
    PurhaseIngredient &buy(Ingredient &line)
    {
        auto &purchase = context().insert<PurhaseIngredient>();
        purchase.setIngredient(&line);
        purchase.setCount(QStringLiteral("2 пачки"));
        purchase.setPurchased(true);
        purchase.setDate(QDateTime(QDate(2024, 3, 1), QTime(8, 0), Qt::UTC));
        EXPECT_TRUE(context().save());
        return purchase;
    }

    template <class T>
    [[nodiscard]] size_t count()
    {
        return context().fetchOrLog<T>().size();
    }
};

/// What a text holds, for matchers.
MATCHER_P(Holds, part, "") { return arg.contains(part); }

} // namespace

TEST_F(SQLiteParserTest, FirstImportMakesEverythingAsInTheFile)
{
    QVariantMap bare{{QStringLiteral("dishID"), QStringLiteral("b2")},
                     {QStringLiteral("catRU"), QStringLiteral("Прочее")}};
    import({record("a1", "Яйцо - 2 шт., Соль", "Egg - 2 pcs, Salt"), bare});
    restart();

    const Dish &first = dish("a1");
    EXPECT_EQ(first.nameRU(), QStringLiteral("Блюдо a1"));
    EXPECT_EQ(first.nameENG(), QStringLiteral("Dish a1"));
    EXPECT_EQ(first.dietPeriod(), QStringLiteral("1, 2, 3"));
    EXPECT_EQ(first.recipeRU(), QStringLiteral("Сварить. Подать."));
    EXPECT_EQ(first.recipeENG(), QStringLiteral("Boil. Serve."));
    EXPECT_EQ(first.recipeNew(), true);
    EXPECT_EQ(first.userCreated(), std::nullopt);
    EXPECT_EQ(outline(first.ingredientsRU()), "0 Яйцо - 2 шт., 1 Соль");
    EXPECT_EQ(outline(first.ingredientsENG()), "0 Egg - 2 pcs, 1 Salt");
    EXPECT_EQ(first.dishCategory()->nameENG(), QStringLiteral("Salads"));
    EXPECT_EQ(first.dishCategory()->displayOrder(), 0U);

    const Dish &second = dish("b2");
    EXPECT_TRUE(second.nameRU().isNull() && second.recipeENG().isNull() && second.dietPeriod().isNull());
    EXPECT_EQ(second.dishCategory()->displayOrder(), DishesCategory::kUnknownOrder);
    EXPECT_EQ(count<Ingredient>(), 4U);
}

TEST_F(SQLiteParserTest, UpdatesInPlaceAndReplacesTheLines)
{
    import({record("grows", "А, Б, В", "A, B, C"), record("shrinks", "А, Б, В", "A, B, C")});
    const qint64 key = dish("grows").objectID();
    restart();

    QVariantMap changed = record("grows", "Г, А, Б, В", "D, A, B, C");
    changed[QStringLiteral("nameRU")] = QStringLiteral("Новое имя");
    changed[QStringLiteral("dietPeriod")] = QStringLiteral("3");
    changed.remove(QStringLiteral("recipeENG"));
    import({changed, record("shrinks", "В", "C")});
    restart();

    const Dish &grown = dish("grows");
    EXPECT_EQ(grown.objectID(), key);
    EXPECT_EQ(grown.nameRU(), QStringLiteral("Новое имя"));
    EXPECT_EQ(grown.dietPeriod(), QStringLiteral("3"));
    EXPECT_TRUE(grown.recipeENG().isNull()) << "an absent key clears";
    EXPECT_EQ(outline(grown.ingredientsRU()), "0 Г, 1 А, 2 Б, 3 В");
    EXPECT_EQ(outline(grown.ingredientsENG()), "0 D, 1 A, 2 B, 3 C");
    EXPECT_EQ(outline(dish("shrinks").ingredientsRU()), "0 В");
    EXPECT_EQ(count<Ingredient>(), 10U) << "the old lines are gone";
}

TEST_F(SQLiteParserTest, ADishMovesWithItsCategoryAndTheOldOneStays)
{
    QVariantMap moved = record("a1", "А");
    import({moved});
    moved[QStringLiteral("catENG")] = QStringLiteral("Another name of it");
    import({moved});
    EXPECT_EQ(dish("a1").dishCategory()->nameENG(), QStringLiteral("Salads")) << "names never change";
    moved[QStringLiteral("catRU")] = QStringLiteral("Соусы");
    import({moved});
    restart();

    EXPECT_EQ(dish("a1").dishCategory()->displayOrder(), 8U);
    const std::vector<DishesCategory *> categories = context().fetchOrLog<DishesCategory>();
    ASSERT_THAT(categories, SizeIs(2));
    EXPECT_TRUE(categories[0]->dishes().empty());
}

TEST_F(SQLiteParserTest, WhatTheUserAttachedStays)
{
    const QVariantMap catalogueDish = record("a1", "А, Б", "A, B");
    import({catalogueDish});
    Dish &known = dish("a1");
    known.setRecipeNew(false);
    known.setUserCreated(true);
    auto &photo = context().insert<Image>();
    photo.setData(QByteArray("photo"));
    known.setImage(&photo);
    DietDay &day = *DietDay::dietDatWithDate(platform().date(2024, 3, 8), context()).value();
    auto &planning = context().insert<DishInDietDay>();
    planning.setDish(&known);
    planning.setDietDays(&day);
    ASSERT_TRUE(context().save());
    const QVariantList favourites{known.nameRU()};
    platform().userDefaults().setValue(favourites, Keys::kFavoriteDishesKey);
    restart();

    QVariantMap update = catalogueDish;
    update[QStringLiteral("recipeRU")] = QStringLiteral("Запечь. Подать.");
    import({update});
    restart();

    const Dish &updated = dish("a1");
    EXPECT_EQ(updated.recipeRU(), QStringLiteral("Запечь. Подать."));
    EXPECT_EQ(updated.recipeNew(), false);
    EXPECT_EQ(updated.userCreated(), true);
    ASSERT_NE(updated.image(), nullptr);
    EXPECT_EQ(updated.image()->data(), QByteArray("photo"));
    ASSERT_THAT(updated.dishInDietDays(), SizeIs(1));
    EXPECT_EQ(updated.dishInDietDays().front()->dietDays()->date(), platform().date(2024, 3, 8));
    EXPECT_EQ(platform().userDefaults().valueForKey(Keys::kFavoriteDishesKey).toList(), favourites);
    EXPECT_NE(Dish::dishWithRusName(favourites.first().toString(), context()), nullptr);
}

TEST_F(SQLiteParserTest, OnlyADishWithRussianLinesLosesItsEnglishOnes)
{
    const QVariantList onlyEnglish{record("a1", "", "A, B")};
    for (const char *expected : {"0 A, 1 B", "0 A, 0 A, 1 B, 1 B", "0 A, 0 A, 0 A, 1 B, 1 B, 1 B"}) {
        import(onlyEnglish);
        restart();
        EXPECT_EQ(outline(dish("a1").ingredientsENG()), expected);
    }
    // Russian lines come: the English ones stay once more; from then on all are replaced.
    const QVariantList both{record("a1", "А", "A")};
    import(both);
    EXPECT_THAT(dish("a1").ingredientsENG(), SizeIs(7));
    import(both);
    EXPECT_EQ(outline(dish("a1").ingredientsENG()), "0 A");
    EXPECT_EQ(count<Ingredient>(), 2U);
}

TEST_F(SQLiteParserTest, DishesThatAreNotInTheFileAreNotTouched)
{
    import({record("dropped", "А, Б", "A, B")});
    for (const char *identifier : {"", "own-7"}) {
        auto &own = context().insert<Dish>();
        own.setNameRU(QStringLiteral("Моё блюдо"));
        own.setUserCreated(true);
        if (*identifier != '\0')
            own.setDishID(QLatin1String(identifier));
        auto &line = context().insert<Ingredient>();
        line.setName(QStringLiteral("Моя строка"));
        own.addIngredientsRU(line);
    }
    ASSERT_TRUE(context().save());
    const QStringList before = content();

    import({record("new", "В")});
    restart();
    QStringList after = content();
    for (const QString &text : before) {
        EXPECT_TRUE(after.removeOne(text)) << text.toStdString();
    }
    EXPECT_EQ(after.size(), 2) << "the new dish and its line";
}

TEST_F(SQLiteParserTest, AShoppingListLinePointsToTheNewLineOfTheSameName)
{
    const QVariantMap dishBefore = record("a1", "Яйцо - 2 шт., Лук - 1 шт.", "Egg - 2 pcs, Onion - 1 pc");
    import({dishBefore, record("a2", "Яйцо - 2 шт.")});
    for (Ingredient *line : dish("a1").ingredientsRU())
        buy(*line);
    for (Ingredient *line : dish("a1").ingredientsENG())
        buy(*line);
    auto &typed = context().insert<Ingredient>();
    typed.setName(QStringLiteral("Свечи"));
    buy(typed);
    restart();

    // The onion goes from both lists.
    import({record("a1", "Соль, Яйцо - 2 шт.", "Salt, Egg - 2 pcs"), record("a2", "Яйцо - 2 шт.")});
    restart();

    const std::vector<PurhaseIngredient *> purchases = context().fetchOrLog<PurhaseIngredient>();
    ASSERT_THAT(purchases, SizeIs(5));
    QStringList names;
    for (const PurhaseIngredient *purchase : purchases) {
        const Ingredient *line = purchase->ingredient();
        ASSERT_NE(line, nullptr) << "a nameless line in the shopping list";
        const Dish *owner = line->dishRU() != nullptr ? line->dishRU() : line->dishENG();
        names.append(line->name() + u'/' + (owner != nullptr ? owner->dishID() : QStringLiteral("-")));
        EXPECT_EQ(purchase->count(), QStringLiteral("2 пачки"));
        EXPECT_EQ(purchase->purchased(), true);
        EXPECT_EQ(purchase->date(), QDateTime(QDate(2024, 3, 1), QTime(8, 0), Qt::UTC));
    }
    EXPECT_THAT(names, ElementsAre(QStringLiteral("Яйцо - 2 шт./a1"), QStringLiteral("Лук - 1 шт./-"),
                                   QStringLiteral("Egg - 2 pcs/a1"), QStringLiteral("Onion - 1 pc/-"),
                                   QStringLiteral("Свечи/-")));
    EXPECT_EQ(outline(dish("a1").ingredientsRU()), "0 Соль, 1 Яйцо - 2 шт.");
    EXPECT_EQ(count<Ingredient>(), 8U) << "5 of the dishes, 2 that only the list holds, 1 typed";

    // The onion comes back: the line that stayed in the list is not the dish's, and nothing doubles.
    import({dishBefore, record("a2", "Яйцо - 2 шт.")});
    EXPECT_EQ(count<PurhaseIngredient>(), 5U);
    EXPECT_EQ(outline(dish("a1").ingredientsRU()), "0 Яйцо - 2 шт., 1 Лук - 1 шт.");
}

TEST_F(SQLiteParserTest, OneIdentifierTwiceInAFileIsOneDishAsTheLaterSays)
{
    QVariantMap later = record("a1", "Б, В", "B");
    later[QStringLiteral("nameRU")] = QStringLiteral("Второе");
    import({record("a1", "А", "A"), later});
    restart();
    EXPECT_EQ(dish("a1").nameRU(), QStringLiteral("Второе"));
    EXPECT_EQ(outline(dish("a1").ingredientsRU()), "0 Б, 1 В");
    EXPECT_EQ(count<Ingredient>(), 3U);
}

TEST_F(SQLiteParserTest, AMalformedFileIsLoggedAndChangesNothing)
{
    import({record("a1", "А, Б", "A, B")});
    const QStringList before = content();
    const QVariantMap fine = record("a1", "Другое");
    const auto with = [&](const char *key, const QVariant &value) {
        QVariantMap faulty = record("a2", "В");
        if (value.isValid())
            faulty[QLatin1String(key)] = value;
        else
            faulty.remove(QLatin1String(key));
        return PropertyList::serialize(QVariantList{fine, faulty}).value();
    };
    const QString noList = QStringLiteral("no local plist file for fileName - |recipes|");
    const struct
    {
        QByteArray bytes;
        QString logged;
    } cases[]{
        {QByteArray(), noList},
        {QByteArray("{\"recipes\": []}"), noList},
        {QByteArray("\xff\xfe\x00\x01 bytes", 10), noList},
        {PropertyList::serialize(QVariantList{fine}).value().left(200), noList},
        {PropertyList::serialize(fine).value(), noList},
        {PropertyList::serialize(QStringLiteral("text")).value(), noList},
        {PropertyList::serialize(QVariantList{fine, QStringLiteral("text")}).value(),
         QStringLiteral("element 1 is not a")},
        {with("dishID", {}), QStringLiteral("element 1 has no \"dishID\"")},
        {with("dishID", QString(QLatin1String(""))), QStringLiteral("element 1 has no \"dishID\"")},
        {with("dishID", 7), QStringLiteral("\"dishID\" is not a text")},
        {with("nameRU", 7), QStringLiteral("\"nameRU\" is not a text")},
        {with("recipeENG", QVariantList{}), QStringLiteral("\"recipeENG\" is not a text")},
        {with("dietPeriod", 123), QStringLiteral("\"dietPeriod\" is not a text")},
        {with("catRU", true), QStringLiteral("\"catRU\" is not a text")},
        {with("ingredientsRU", QStringLiteral("А")), QStringLiteral("\"ingredientsRU\" is not an array")},
        {with("ingredientsENG", QVariantMap{}), QStringLiteral("\"ingredientsENG\" is not an array")},
        {with("ingredientsRU", QVariantList{QStringLiteral("А"), 1}),
         QStringLiteral("\"ingredientsRU\" holds something")},
    };
    for (const auto &one : cases) {
        SCOPED_TRACE(one.bytes.right(300).toStdString());
        writeResource("recipes.plist", one.bytes);
        const QStringList lines = parse();
        EXPECT_THAT(lines, Contains(Holds(one.logged)));
        EXPECT_EQ(lines.first(), QStringLiteral("start parsing"));
        EXPECT_EQ(lines.last(), QStringLiteral("end parsing"));
        EXPECT_FALSE(context().hasChanges());
        EXPECT_EQ(content(), before);
    }
    restart();
    EXPECT_EQ(content(), before);
}

TEST_F(SQLiteParserTest, TheWholeImportIsOneTransaction)
{
    StatementLog log;
    restart();
    QVariantList recipes;
    for (int i = 0; i < 40; ++i)
        recipes.append(record(qPrintable(QStringLiteral("d%1").arg(i)), "А, Б, В", "A, B, C"));
    for (const char *run : {"first", "update"}) {
        SCOPED_TRACE(run);
        (void)context().fetch<Dish>();
        (void)log.take();
        import(recipes);
        const QStringList statements = log.take();
        const auto begin = statements.indexOf(QRegularExpression(QStringLiteral("^BEGIN.*")));
        const auto commit = statements.indexOf(QRegularExpression(QStringLiteral("^COMMIT.*")));
        const QRegularExpression write(QStringLiteral("^(BEGIN|COMMIT|INSERT|UPDATE|DELETE)"));
        EXPECT_GT(commit, begin + 1);
        EXPECT_EQ(statements.filter(write).size(), statements.mid(begin, commit - begin + 1).filter(write).size());
        EXPECT_EQ(statements.filter(QRegularExpression(QStringLiteral("^(BEGIN|COMMIT)"))).size(), 2);
    }
}

TEST_F(SQLiteParserTest, AFailedSaveIsLoggedAndTheObjectsWaitForTheNextOne)
{
    import({record("a1", "А")});
    const QStringList before = content();
    ASSERT_TRUE(PropertyList::write(QVariantList{record("a2", "Б")},
                                    Platform::current().resourcesFolder() + QStringLiteral("/recipes.plist")));
    makeReadOnly(true);
    const QStringList lines = parse();
    EXPECT_THAT(lines, Contains(Holds(QStringLiteral("error while saving context - "))));
    EXPECT_EQ(lines.last(), QStringLiteral("end parsing"));
    EXPECT_TRUE(context().hasChanges());
    EXPECT_EQ(outline(dish("a2").ingredientsRU()), "0 Б");

    makeReadOnly(false);
    EXPECT_TRUE(context().save());
    restart();
    EXPECT_EQ(outline(dish("a2").ingredientsRU()), "0 Б");
    EXPECT_EQ(content().size(), before.size() + 2);
}

TEST_F(SQLiteParserTest, AFailedReadEndsTheImportAndChangesNothing)
{
    import({record("a1", "А, Б", "A, B")});
    buy(*dish("a1").ingredientsRU().front());
    writeResource("recipes.plist", PropertyList::serialize(QVariantList{record("a1", "В"), record("a2", "Г")}).value());
    restart();
    const QStringList before = content();
    for (const char *entity : {"Dish", "DishesCategory", "Ingredient", "PurhaseIngredient"}) {
        SCOPED_TRACE(entity);
        restart();
        makeUnreadable(entity);
        const QStringList lines = parse();
        EXPECT_EQ(lines.filter(QStringLiteral("the catalogue could not be imported: ")).size(), 1);
        EXPECT_EQ(lines.last(), QStringLiteral("end parsing"));
        EXPECT_FALSE(SQLiteParser::parse().has_value());
        EXPECT_FALSE(context().hasChanges());
        makeUnreadable(nullptr);
        EXPECT_EQ(content(), before);
    }
    ASSERT_TRUE(SQLiteParser::parse());
    EXPECT_EQ(outline(dish("a1").ingredientsRU()), "0 В");
}

TEST_F(SQLiteParserTest, ACategoryWithoutARussianNameIsCreatedOnce)
{
    QVariantMap absent = record("a1", "");
    absent.remove(QStringLiteral("catRU"));
    QVariantMap empty = record("a2", "");
    empty[QStringLiteral("catRU")] = QStringLiteral("");
    for (int run = 0; run < 2; ++run) {
        import({absent, empty});
        EXPECT_EQ(count<DishesCategory>(), 2U) << "absent and empty differ";
        restart();
    }
}

TEST_F(SQLiteParserTest, TheShippedCatalogueComesWholeAndTwiceTheSame)
{
    const QString path = QStringLiteral(KESTO_SHARE "/recipes.plist");
    const QVariantList recipes = PropertyList::read(path).value_or(QVariant()).toList();
    ASSERT_GE(recipes.size(), 320);
    import(recipes);
    restart();
    EXPECT_EQ(count<Dish>(), static_cast<size_t>(recipes.size()));
    EXPECT_EQ(count<DishesCategory>(), 9U);
    size_t lines = 0;
    for (const QVariant &element : recipes) {
        const QVariantMap one = element.toMap();
        for (const char *list : {"ingredientsRU", "ingredientsENG"})
            lines += static_cast<size_t>(one.value(QLatin1String(list)).toList().size());
    }
    EXPECT_EQ(count<Ingredient>(), lines);

    const QStringList before = content();
    import(recipes);
    restart();
    EXPECT_EQ(content(), before);
}
