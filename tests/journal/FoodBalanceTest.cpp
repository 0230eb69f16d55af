#include "journal/FoodBalanceRootViewController.h"

#include "journal/BalanceFixture.h"

#include <QSignalSpy>

#include <limits>

namespace kesto::test
{

class FoodBalance : public BalanceFixture
{
protected:
    FoodBalanceRootViewController &showFood() { return show<FoodBalanceRootViewController>(dayOf(7)); }
    void record(std::optional<int> type, std::optional<int> count)
    {
        auto &food = program.context().insert<FoodObject>();
        food.setType(type);
        food.setCount(count);
        food.setJornalDayMeat(&journal());
    }
    [[nodiscard]] static QStringList badges(const FoodBalanceRootViewController &screen)
    {
        QStringList shown;
        for (const JornalButton *button : screen.meatButtons()) {
            if (!button->badge().isNull())
                shown.append(QStringLiteral("%1:%2").arg(button->tag()).arg(button->badge()));
        }
        return shown;
    }
};

TEST_F(FoodBalance, TouchesCountPortionsInOneRecordAFood)
{
    FoodBalanceRootViewController &food = showFood();
    for (const int type : {4, 1, 4, 1, 4})
        food.meatButtonTouched(type);
    food.meatButtonTouched(0);
    food.meatButtonTouched(41);
    EXPECT_EQ(food.currentValue(), 3 * 12 + 2 * 2); // of 12.5 and 2.5 g
    EXPECT_EQ(food.progressText(), QStringLiteral("40 г/80 г"));
    EXPECT_EQ(badges(food), texts({"1:2", "4:3"}));
    EXPECT_EQ(rowsOf(food), texts({"Цветная капуста|200 г.", "Яйцо|300 г."}));
    EXPECT_EQ(food.table()->rowAt({0, 1}).subtitle, QStringLiteral("12.5 г."));

    restart();
    FoodBalanceRootViewController &again = showFood();
    EXPECT_EQ(again.currentValue(), 40);
    EXPECT_NEAR(journal().meatObjects().front()->time().value_or(0), 10.3, 1e-6);
    again.deleteRowByUser(0, 1);
    EXPECT_EQ(badges(again), texts({"1:2"}));
    restart();
    EXPECT_EQ(journal().meatObjects().size(), 1);
}

TEST_F(FoodBalance, ActivityIsToggledAndSetsTheNorm)
{
    program.defaults().setInteger(1, QStringLiteral("Пол"));
    program.defaults().setInteger(41, QStringLiteral("Возраст"));
    FoodBalanceRootViewController &food = showFood();
    const auto images = [](const FoodBalanceRootViewController &screen) {
        QStringList chosen;
        for (const JornalButton *button : screen.activityButtons()) {
            EXPECT_EQ(button->isSelected(), !button->image().endsWith(QStringLiteral("_un")));
            if (button->isSelected())
                chosen.append(button->image());
        }
        return chosen;
    };
    food.actionButtonTouched(2);
    food.actionButtonTouched(4);
    food.actionButtonTouched(5);
    EXPECT_EQ(food.normalValue(), 85);
    EXPECT_EQ(images(food), texts({"button_activity_extra_hard"}));
    restart();
    EXPECT_EQ(journal().meatSportActivity(), 4);
    FoodBalanceRootViewController &again = showFood();
    EXPECT_EQ(again.normalValue(), 85);
    again.actionButtonTouched(4);
    EXPECT_EQ(again.normalValue(), 68);
    EXPECT_EQ(images(again), QStringList());
    EXPECT_EQ(journal().meatSportActivity(), std::nullopt);

    // The journal moves to another day.
    dayOf(8).jornalDay()->setMeatSportActivity(1);
    const QSignalSpy changes(&again, &FoodBalanceRootViewController::valuesChanged);
    again.setDietDay(&dayOf(8));
    again.setJornalDay(dayOf(8).jornalDay());
    EXPECT_EQ(again.normalValue(), 75);
    EXPECT_EQ(images(again), texts({"button_activity_easily"}));
    EXPECT_EQ(changes.size(), 1);
    again.setJornalDay(nullptr);
    again.meatButtonTouched(1);
    again.actionButtonTouched(1);
    EXPECT_EQ(again.currentValue(), 0);
}

TEST_F(FoodBalance, StrangeRecordsCountNothingAndCanBeDeleted)
{
    constexpr int most = std::numeric_limits<int>::max();
    record({}, 3);
    record(41, 3);
    record(2, {});
    record(3, -5);
    record(16, 1); // the same food twice, as two devices may have it
    record(16, 2);
    FoodBalanceRootViewController &food = showFood();
    EXPECT_EQ(food.currentValue(), 3 * 40);
    EXPECT_EQ(badges(food), texts({"16:3"}));
    EXPECT_EQ(rowsOf(food).first(), QStringLiteral("Белок|300 г."));
    food.meatButtonTouched(2);
    food.meatButtonTouched(3);
    EXPECT_EQ(food.currentValue(), 3 * 40 + 16 + 25);
    while (food.table()->numberOfRowsInSection(0) > 0)
        food.deleteRowByUser(0, 0);
    EXPECT_EQ(food.currentValue(), 0);

    record(5, most);
    food.meatButtonTouched(5);
    EXPECT_EQ(food.currentValue(), most);
    EXPECT_EQ(food.table()->rowAt({0, 0}).detail, QStringLiteral("214748364700 г."));
}

} // namespace kesto::test
