#include "StoreFixture.h"

#include "model/Dish.h"
#include "model/DishesCategory.h"

namespace kesto::test
{
namespace
{

/// A catalogue in which every dish is called by its category's place and its own, as "3b".
class Autofill : public testing::Test
{
protected:
    void addCategory(quint32 order, const QList<const char *> &periodsOfDishes)
    {
        auto &category = program.context().insert<DishesCategory>();
        category.setDisplayOrder(order);
        char letter = 'a';
        for (const char *periods : periodsOfDishes) {
            auto &dish = program.context().insert<Dish>();
            dish.setNameRU(QString::number(order) + QLatin1Char(letter++));
            if (periods != nullptr)
                dish.setDietPeriod(QString::fromUtf8(periods));
            category.addDishes(dish);
        }
    }
    void addNineCategories()
    {
        for (quint32 order = 0; order < 9; ++order)
            addCategory(order, {"0, 1", "1", "0123", nullptr, "0"});
        ASSERT_TRUE(program.context().save());
    }
    [[nodiscard]] std::string proposal(int period, const QList<quint32> &numbers)
    {
        program.platform.random().set(numbers);
        QStringList names;
        for (const Dish *dish : program.manager().autoFilledDishesForPeriod(period))
            names.append(dish->nameRU());
        return names.join(u' ').toStdString();
    }

    StoreFixture program;
    LogCapture capture;
};

TEST_F(Autofill, TakesOneDishOfEachCategoryOfADayAndASecondOfTheFirst)
{
    addNineCategories();
    // The second dish is drawn directly behind the first one, and stands at the end.
    EXPECT_EQ(proposal(0, {0, 1, 2, 0, 1, 2}), "1a 2e 3a 5c 7e 1c");
    EXPECT_EQ(program.platform.random().bounds(), QList<quint32>({3, 3, 3, 3, 3, 3}));
    EXPECT_EQ(proposal(1, {2, 1, 0, 1, 2, 0}), "1c 2a 3b 5c 7a 1b");
    EXPECT_EQ(proposal(2, {7}), "1c 2c 3c 5c 7c") << "one dish of the phase each: there is no second";
    EXPECT_EQ(program.platform.random().bounds(), QList<quint32>({1, 1, 1, 1, 1}));
    EXPECT_EQ(proposal(4, {0}), "");
    EXPECT_EQ(proposal(-1, {0}), "");
}

TEST_F(Autofill, TellsWhatItDoes)
{
    addNineCategories();
    capture.take();
    EXPECT_EQ(proposal(0, {1, 1, 1, 2, 0, 0, 0, 0}), "1c 2a 3a 5a 7a 1e") << "what was drawn already is drawn again";
    EXPECT_EQ(program.platform.random().bounds().size(), 8);
    EXPECT_THAT(capture.take(), testing::ElementsAre(
                                    QStringLiteral("start finding autofiled dishes"), QStringLiteral("check dish - 1c"),
                                    QStringLiteral("alredy selected dish - skip it"), QStringLiteral("check dish - 1c"),
                                    QStringLiteral("alredy selected dish - skip it"), QStringLiteral("check dish - 1e"),
                                    QStringLiteral("add final dish and break"), QStringLiteral("done find dishes")));
}

TEST_F(Autofill, EndsWhateverTheRandomNumbersAre)
{
    addNineCategories();
    for (const auto &[number, expected] : {std::pair(0, "1a 2a 3a 5a 7a 1c"), std::pair(1, "1c 2c 3c 5c 7c 1a")})
        EXPECT_EQ(proposal(0, {static_cast<quint32>(number)}), expected);
}

TEST_F(Autofill, LeavesOutWhatIsNotThere)
{
    EXPECT_EQ(proposal(0, {0}), "") << "without a catalogue";
    addCategory(7, {"0", "0"});
    addCategory(2, {});
    addCategory(5, {"1", nullptr});
    addCategory(1, {"0", "1"});
    addCategory(4, {"0"});
    addCategory(DishesCategory::kUnknownOrder, {"0"});
    EXPECT_EQ(proposal(0, {1}), "1a 7b");
    EXPECT_EQ(proposal(1, {1}), "1b 5a");
    addCategory(3, {"0"});
    EXPECT_EQ(proposal(0, {0}), "1a 3a 7a") << "also of what is not saved";
}

} // namespace
} // namespace kesto::test
