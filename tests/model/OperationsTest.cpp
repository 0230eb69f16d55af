#include "model/DietDay.h"
#include "model/DietModel.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "model/Ingredient.h"
#include "model/JornalDay.h"
#include "platform/objectgraph/ManagedObjectContext.h"
#include "platform/objectgraph/PersistentStoreCoordinator.h"
#include "platform/objectgraph/SqlStore.h"
#include "support/LogCapture.h"
#include "support/TestPlatform.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>

namespace kesto::test
{

namespace
{

class OperationsTest : public testing::Test
{
protected:
    explicit OperationsTest(const QString &language = QStringLiteral("ru"), const QString &resources = {})
        : platform_({.resourcesFolder = resources, .language = language})
    {
        reopen();
    }

    void reopen()
    {
        context_.reset();
        coordinator_ = std::make_unique<PersistentStoreCoordinator>(dietModel());
        ASSERT_TRUE(coordinator_->addPersistentStore(platform_.folder() + QStringLiteral("/Diet.sqlite"), {}));
        context_ = std::make_unique<ManagedObjectContext>(*coordinator_);
    }
    void breakTable(const char *table)
    {
        ASSERT_TRUE(coordinator_->access()->execute((std::string("DROP TABLE ") + table).c_str()));
    }

    TestPlatform platform_;
    std::unique_ptr<PersistentStoreCoordinator> coordinator_;
    std::unique_ptr<ManagedObjectContext> context_;
    const QDateTime midnight_ = platform_.date(2024, 3, 31);
};

TEST_F(OperationsTest, ADayIsFoundByItsExactInstantOrMadeAndSaved)
{
    EXPECT_EQ(DietDay::dayWithoutCreation(midnight_, *context_), nullptr);
    EXPECT_TRUE(context_->fetchOrLog<DietDay>().empty());
    DietDay &day = *DietDay::dietDatWithDate(midnight_, *context_).value();
    EXPECT_FALSE(context_->hasChanges()); // saved at once
    EXPECT_EQ(DietDay::dietDatWithDate(midnight_, *context_).value(), &day);
    EXPECT_EQ(DietDay::dayWithoutCreation(midnight_.toUTC(), *context_), &day);
    for (const qint64 distance : {1, -1, 1000})
        EXPECT_EQ(DietDay::dayWithoutCreation(midnight_.addMSecs(distance), *context_), nullptr);
    EXPECT_NE(DietDay::dietDatWithDate(midnight_.addSecs(1), *context_).value(), &day);
    reopen();
    EXPECT_EQ(context_->fetchOrLog<DietDay>().size(), 2U);
    DietDay *again = DietDay::dayWithoutCreation(midnight_, *context_);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->date(), midnight_);
    EXPECT_TRUE(again->isEmpty());
    EXPECT_EQ(DietDay::dietDatWithDate(midnight_, *context_).value(), again);
    // Of two days of one instant it is always the same.
    auto &twin = context_->insert<DietDay>();
    twin.setDate(midnight_);
    EXPECT_EQ(DietDay::dietDatWithDate(midnight_, *context_).value(), again);
    ASSERT_TRUE(context_->save());
    reopen();
    EXPECT_EQ(DietDay::dayWithoutCreation(midnight_, *context_)->objectID(),
              DietDay::dayWithoutCreation(midnight_, *context_)->objectID());
    EXPECT_EQ(context_->fetchOrLog<DietDay>().size(), 3U);
}

TEST_F(OperationsTest, OnlyPresenceMakesADayNonEmpty)
{
    const struct
    {
        const char *what;
        std::function<void(DietDay &)> change;
        bool isEmpty;
    } table[] = {
        {"nothing", [](DietDay &) {}, true},
        {"a biceps and three dishes",
         [this](DietDay &day) {
             day.setBiceps(42.0F);
             for (int i = 0; i < 3; ++i)
                 day.addDishes(context_->insert<DishInDietDay>());
         },
         true},
        {"biceps, dishes, and no feast",
         [this](DietDay &day) {
             day.setBiceps(42.0F);
             day.addDishes(context_->insert<DishInDietDay>());
             day.setFeast(false);
         },
         false},
        {"weight 0", [](DietDay &day) { day.setWeight(0.0F); }, false},
        {"chest", [](DietDay &day) { day.setChest(0.0F); }, false},
        {"hip", [](DietDay &day) { day.setHip(0.0F); }, false},
        {"waist", [](DietDay &day) { day.setWaist(0.0F); }, false},
        {"no chB", [](DietDay &day) { day.setChB(false); }, false},
        {"no bO", [](DietDay &day) { day.setBO(false); }, false},
        {"feast", [](DietDay &day) { day.setFeast(true); }, false},
        {"a journal", [this](DietDay &day) { day.setJornalDay(&context_->insert<JornalDay>()); }, false},
        {"a weight that was taken back",
         [](DietDay &day) {
             day.setWeight(80.0F);
             day.setWeight(std::nullopt);
         },
         true},
    };
    int days = 0;
    for (const auto &[what, change, isEmpty] : table) {
        const QDateTime date = midnight_.addDays(++days);
        change(*DietDay::dietDatWithDate(date, *context_).value());
        EXPECT_EQ(DietDay::dayWithoutCreation(date, *context_)->isEmpty(), isEmpty) << what;
        ASSERT_TRUE(context_->save());
        reopen();
        EXPECT_EQ(DietDay::dayWithoutCreation(date, *context_)->isEmpty(), isEmpty) << what << ", reopened";
    }
}

TEST_F(OperationsTest, ADishIsFoundByItsIdentifierOrMadeAsNewAndNotSaved)
{
    const QString id = QStringLiteral("d1");
    Dish &dish = *Dish::dishWithID(id, *context_).value();
    EXPECT_EQ(dish.dishID(), id);
    EXPECT_EQ(dish.recipeNew(), true);
    EXPECT_FALSE(dish.userCreated().has_value());
    EXPECT_TRUE(context_->hasChanges());
    EXPECT_EQ(Dish::dishWithID(id, *context_).value(), &dish); // also before it is saved
    EXPECT_NE(Dish::dishWithID(QStringLiteral("D1"), *context_).value(), &dish);
    for (const std::optional<bool> opened : {std::optional(false), std::optional<bool>()}) {
        Dish::dishWithID(id, *context_).value()->setRecipeNew(opened);
        ASSERT_TRUE(context_->save());
        reopen();
        EXPECT_EQ(Dish::dishWithID(id, *context_).value()->recipeNew(), opened);
        EXPECT_FALSE(context_->hasChanges());
    }
    const QString name = QStringLiteral("Щи «зелёные» 100%");
    EXPECT_EQ(Dish::dishWithRusName(name, *context_), nullptr);
    Dish::dishWithID(id, *context_).value()->setNameRU(name);
    EXPECT_EQ(Dish::dishWithRusName(name, *context_), Dish::dishWithID(id, *context_).value());
    EXPECT_EQ(Dish::dishWithRusName(name.toUpper(), *context_), nullptr);
    EXPECT_EQ(Dish::dishWithRusName(name.chopped(1), *context_), nullptr);
    EXPECT_EQ(context_->fetchOrLog<Dish>().size(), 2U);
}

TEST_F(OperationsTest, ACategoryKeepsItsFirstEnglishNameAndHasItsPlace)
{
    const char *const nine[] = {"Салаты",
                                "Закуски и бутерброды",
                                "Первые блюда",
                                "Вторые блюда",
                                "Несладкая выпечка",
                                "Десерты",
                                "Блины",
                                "Напитки",
                                "Соусы"};
    const auto category = [&](const char *rus, const char *eng) -> DishesCategory & {
        return *DishesCategory::dishCategoryWirhRusName(QString::fromUtf8(rus), QString::fromUtf8(eng), *context_)
                    .value();
    };
    LogCapture log;
    category("соусы", "lower case");
    category("Прочее", "Other");
    for (size_t i = std::size(nine); i-- > 0;)
        category(nine[i], ("eng" + std::to_string(i)).c_str());
    EXPECT_EQ(log.lines().size(), 11);
    EXPECT_EQ(log.lines().at(1), QStringLiteral("create category - Прочее|Other"));
    EXPECT_EQ(log.take().at(2), QStringLiteral("create category - Соусы|eng8"));
    EXPECT_TRUE(context_->hasChanges()); // not saved here
    ASSERT_TRUE(context_->save());
    reopen();
    DishesCategory &sauces = category("Соусы", "Another");
    EXPECT_EQ(sauces.nameENG(), QStringLiteral("eng8"));
    EXPECT_EQ(sauces.displayOrder(), 8U);
    sauces.setDisplayOrder(3);
    EXPECT_EQ(category("Соусы", "Another").displayOrder(), 3U); // as it is
    sauces.setDisplayOrder(8);
    EXPECT_TRUE(log.lines().isEmpty());
    EXPECT_EQ(category("Прочее", "").displayOrder(), 4'294'967'295U);
    const auto sorted = context_->fetchOrLog<DishesCategory>({.sortDescriptors = {{"displayOrder"}}});
    ASSERT_EQ(sorted.size(), 11U);
    for (size_t i = 0; i < std::size(nine); ++i) {
        EXPECT_EQ(sorted[i]->nameRU(), QString::fromUtf8(nine[i]));
        EXPECT_EQ(sorted[i]->displayOrder(), i);
    }
    EXPECT_EQ(sorted.back()->nameRU(), QStringLiteral("Прочее"));
}

TEST_F(OperationsTest, AFreeIngredientIsFoundByItsExactNameOrMadeAndSaved)
{
    const QString name = QStringLiteral("Яйцо — 2 шт.");
    Ingredient &egg = *Ingredient::ingredientWithName(name, *context_).value();
    EXPECT_FALSE(context_->hasChanges());
    EXPECT_EQ(egg.name(), name);
    EXPECT_FALSE(egg.displayOrder().has_value());
    EXPECT_EQ(egg.dishRU(), nullptr);
    EXPECT_EQ(egg.dishENG(), nullptr);
    const qint64 key = egg.objectID();
    reopen();
    EXPECT_EQ(Ingredient::ingredientWithName(name, *context_).value()->objectID(), key);
    EXPECT_NE(Ingredient::ingredientWithName(name.toLower(), *context_).value()->objectID(), key);
    EXPECT_EQ(context_->fetchOrLog<Ingredient>().size(), 2U);
}

class IngredientsTest : public OperationsTest, public testing::WithParamInterface<const char *>
{
protected:
    IngredientsTest()
        : OperationsTest(QLatin1String(GetParam()))
    {
    }
};

TEST_P(IngredientsTest, AreThoseOfTheLanguageInTheirOrder)
{
    auto &dish = context_->insert<Dish>();
    EXPECT_TRUE(dish.ingredients().empty());
    for (const int place : {10, 2, 0, 1}) {
        for (const char *language : {"ru", "en"}) {
            auto &line = context_->insert<Ingredient>();
            line.setName(QLatin1String(language) + QString::number(place));
            line.setDisplayOrder(place);
            *language == 'r' ? line.setDishRU(&dish) : line.setDishENG(&dish);
        }
    }
    QStringList names;
    for (const Ingredient *line : dish.ingredients())
        names.append(line->name());
    EXPECT_EQ(names.join(u' ').remove(QLatin1String(GetParam())), QStringLiteral("0 1 2 10"));
}

class WithoutTextsTest : public OperationsTest
{
protected:
    WithoutTextsTest()
        : OperationsTest(QStringLiteral("en"), QStringLiteral("/no such folder"))
    {
    }
};

TEST_F(WithoutTextsTest, DishesShowTheirRussianTexts)
{
    std::vector<Dish *> dishes;
    for (const char *name : {"Щи", "Борщ"}) {
        auto &dish = context_->insert<Dish>();
        dish.setNameRU(QString::fromUtf8(name));
        context_->insert<Ingredient>().setDishRU(&dish);
        dishes.push_back(&dish);
    }
    LogCapture log;
    Dish::sortByDisplayName(dishes);
    EXPECT_EQ(dishes.front()->displayName(), QStringLiteral("Борщ"));
    EXPECT_EQ(dishes.back()->ingredients().size(), 1U);
    EXPECT_EQ(log.lines(),
              (QStringList{QStringLiteral("Dish has no name - nameKey"), QStringLiteral("Dish has no name - nameKey"),
                           QStringLiteral("Dish has no ingredients - ingKey")}));
}

INSTANTIATE_TEST_SUITE_P(Languages, IngredientsTest, testing::Values("ru", "en"));

TEST_F(OperationsTest, WhatCanNotBeLookedUpIsLoggedAndNotMadeASecondTime)
{
    for (const char *table : {"Dish", "DishesCategory", "DietDay", "Ingredient"})
        breakTable(table);
    const QString name = QStringLiteral("Соль");
    const struct
    {
        const char *operation;
        std::function<bool()> found;
    } table[] = {
        {"dishWithID", [&] { return Dish::dishWithID(name, *context_).has_value(); }},
        {"dishWithRusName", [&] { return Dish::dishWithRusName(name, *context_) != nullptr; }},
        {"dishCategoryWirhRusName",
         [&] { return DishesCategory::dishCategoryWirhRusName(name, name, *context_).has_value(); }},
        {"dietDatWithDate", [&] { return DietDay::dietDatWithDate(midnight_, *context_).has_value(); }},
        {"dayWithoutCreation", [&] { return DietDay::dayWithoutCreation(midnight_, *context_) != nullptr; }},
        {"ingredientWithName", [&] { return Ingredient::ingredientWithName(name, *context_).has_value(); }},
    };
    for (const auto &[operation, found] : table) {
        LogCapture log;
        EXPECT_FALSE(found()) << operation;
        ASSERT_EQ(log.lines().size(), 1) << operation;
        EXPECT_TRUE(log.lines().front().startsWith(QLatin1String(operation) + QStringLiteral(": error - ")));
        EXPECT_TRUE(log.lines().front().contains(QStringLiteral("no such table")));
    }
    EXPECT_FALSE(context_->hasChanges());
}

} // namespace

} // namespace kesto::test
