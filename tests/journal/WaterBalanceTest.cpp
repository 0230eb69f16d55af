#include "journal/WaterBalanceRootViewController.h"

#include "components/NavigationController.h"
#include "journal/BalanceFixture.h"
#include "journal/WaterVals.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"
#include "objectgraph/StatementLog.h"

#include <QSignalSpy>

namespace kesto::test
{

class WaterBalance : public BalanceFixture
{
protected:
    WaterBalanceRootViewController &showWater() { return show<WaterBalanceRootViewController>(dayOf(7)); }
    /// A drink of the schedule, to be done.
    TimeRow &schedule(float time, int portion)
    {
        auto &row = program.context().insert<TimeRow>();
        row.setTime(time);
        row.setJoranlDay(&journal());
        auto &water = program.context().insert<TimeObject>();
        water.setType(0);
        water.setWaterType(portion);
        water.setTimeRow(&row);
        return row;
    }
    void storePortion(const char *key, const QVariant &volume)
    {
        QVariantMap portions = waterValsDict();
        portions.insert(QLatin1String(key), volume);
        program.defaults().setValue(portions, Keys::kWaterWalskey);
    }
};

TEST_F(WaterBalance, EachTouchIsARecordThatOutlivesTheProgram)
{
    WaterBalanceRootViewController &water = showWater();
    const QSignalSpy changes(&water, &WaterBalanceRootViewController::valuesChanged);
    water.picker()->touch(2);
    program.platform.clock().advance(-3600);
    water.picker()->touch(2);
    water.picker()->touch(9);
    EXPECT_EQ(water.currentValue(), 600);
    EXPECT_EQ(water.progressText(), QStringLiteral("600 мл/2400 мл"));
    EXPECT_EQ(water.currentText() + water.normalText(), water.progressText());
    EXPECT_EQ(water.progress(), 0.25);
    EXPECT_EQ(changes.size(), 2);
    EXPECT_EQ(rowsOf(water), texts({"300 мл.|9:30", "300 мл.|10:30"}));

    restart();
    WaterBalanceRootViewController &again = showWater();
    EXPECT_EQ(rowsOf(again), texts({"300 мл.|9:30", "300 мл.|10:30"}));
    again.deleteRowByUser(0, 0);
    EXPECT_EQ(rowsOf(again), texts({"300 мл.|10:30"}));
    EXPECT_EQ(again.currentValue(), 300);
    restart();
    EXPECT_EQ(journal().waterObjects().size(), 1);
    EXPECT_EQ(journal().waterObjects().front()->count(), std::nullopt);
}

TEST_F(WaterBalance, CountsTheScheduleWhileItsRowsAreDone)
{
    TimeRow &row = schedule(11, 8);
    schedule(9, 1);
    program.context().insert<TimeRow>().setJoranlDay(&journal());
    WaterBalanceRootViewController &water = showWater();
    EXPECT_EQ(water.currentValue(), 0);
    row.setCompleate(true);
    water.picker()->touch(1);
    EXPECT_EQ(rowsOf(water), texts({"150 мл.|10:30", "1000 мл.|11:00"}));
    EXPECT_EQ(water.currentValue(), 1150);
    water.deleteRowByUser(0, 1); // is changed in the schedule
    EXPECT_EQ(water.currentValue(), 1150);
    row.setCompleate(false);
    water.reloadData();
    EXPECT_EQ(water.currentValue(), 150);
}

TEST_F(WaterBalance, TheNormFollowsTheLatestWeightAndTheSex)
{
    WaterBalanceRootViewController &water = showWater();
    EXPECT_EQ(water.normalValue(), 2400);
    program.weigh(program.platform.date(2024, 3, 1), 90);
    program.weigh(program.platform.date(2024, 3, 9), 70);
    water.reloadData();
    EXPECT_EQ(water.normalValue(), 2100);
    dayOf(7).setWeight(60);
    program.defaults().setInteger(1, QStringLiteral("Пол"));
    water.reloadData();
    EXPECT_EQ(water.normalValue(), 2000);
    // Without a norm there is no text, and the drop stays empty.
    dayOf(7).setWeight(0);
    program.defaults().setInteger(2, QStringLiteral("Пол"));
    water.picker()->touch(1);
    EXPECT_EQ(water.progressText(), QString());
    EXPECT_EQ(water.progress(), 0);
}

TEST_F(WaterBalance, HeatAndSportRaiseTheShownNormUntilItIsReckonedAnew)
{
    WaterBalanceRootViewController &water = showWater();
    water.actionButtonTouched(WaterBalanceRootViewController::HeatAction);
    EXPECT_EQ(water.normalValue(), 2880);
    water.actionButtonTouched(WaterBalanceRootViewController::ActivityAction);
    EXPECT_EQ(water.normalValue(), 3360);
    water.actionButtonTouched(WaterBalanceRootViewController::HeatAction);
    EXPECT_EQ(water.normalValue(), 2880);
    EXPECT_EQ(journal().sportDay(), false); // what the touched button shows, whichever it is
    water.picker()->touch(1);
    EXPECT_EQ(water.normalValue(), 2400);
    water.actionButtonTouched(WaterBalanceRootViewController::HeatAction);

    restart();
    EXPECT_EQ(journal().sportDay(), true);
    EXPECT_EQ(journal().hotDay(), std::nullopt);
    WaterBalanceRootViewController &again = showWater();
    EXPECT_EQ(again.normalValue(), 2400);
    EXPECT_FALSE(again.actionButtons().at(1)->isSelected());
    EXPECT_TRUE(again.actionButtons().at(2)->isSelected());
    again.setDietDay(&dayOf(8));
    again.setJornalDay(dayOf(8).jornalDay());
    EXPECT_FALSE(again.actionButtons().at(2)->isSelected());
    EXPECT_EQ(again.currentValue(), 0);
    again.setJornalDay(nullptr);
    again.picker()->touch(1);
    EXPECT_EQ(again.currentValue(), 0);
}

TEST_F(WaterBalance, TheEditorStoresVolumesWhenItCloses)
{
    storePortion("3", QStringLiteral("broken"));
    storePortion("other", 5);
    WaterBalanceRootViewController &water = showWater();
    water.picker()->touch(1);
    const auto openEditor = [&]() -> WaterValuesTableViewController & {
        water.actionButtonTouched(WaterBalanceRootViewController::VolumeAction);
        auto *stack = qobject_cast<NavigationController *>(water.presentedViewController());
        return *qobject_cast<WaterValuesTableViewController *>(stack->rootViewController());
    };
    openEditor().close();
    WaterValuesTableViewController &editor = openEditor();
    for (const auto &[value, title] :
         {std::pair(154.9, "150 мл."), std::pair(155.0, "160 мл."), std::pair(-3.0, "0 мл."),
          std::pair(1e30, "500 мл."), std::pair(200.0, "200 мл.")}) {
        editor.sliderMoved(value, 0);
        EXPECT_EQ(editor.table()->rowAt({0, 0}).title, QString::fromUtf8(title));
    }
    editor.sliderMoved(1e30, 7);
    editor.sliderMoved(100, 8);
    EXPECT_EQ(editor.table()->rowAt({0, 7}).title, QStringLiteral("1000 мл."));
    EXPECT_EQ(editor.table()->rowAt({0, 2}).title, QStringLiteral("0 мл."));
    EXPECT_EQ(water.currentValue(), 150); // not before it closes
    editor.close();
    EXPECT_EQ(water.currentValue(), 200);
    EXPECT_EQ(water.picker()->buttons().first()->title(), QStringLiteral("200 мл."));
    EXPECT_EQ(water.presentedViewController(), nullptr);

    restart();
    EXPECT_EQ(waterValsDict().value(QStringLiteral("1")), 200);
    EXPECT_EQ(waterValsDict().value(QStringLiteral("3")), QStringLiteral("broken"));
    EXPECT_EQ(waterValsDict().value(QStringLiteral("other")), 5);
    EXPECT_FALSE(waterValsDict().contains(QStringLiteral("9")));
}

TEST_F(WaterBalance, ManyRecordsTakeNoMoreStatementsThanFew)
{
    const auto statements = [this](int records) {
        for (int i = 0; i < records; ++i) {
            auto &record = program.context().insert<FoodObject>();
            record.setType(i); // also keys that no portion has
            record.setJornalDayWatter(&journal());
            schedule(static_cast<float>(i % 24), 1).setCompleate(true);
        }
        EXPECT_TRUE(program.context().save());
        program.restart();
        StatementLog log;
        program.restart();
        DietDay &day = dayOf(7);
        (void)log.take();
        const WaterBalanceRootViewController water(day);
        EXPECT_EQ(water.numberOfRowsInSection(0), records == 1 ? 2 : 122);
        return log.count();
    };
    const qsizetype few = statements(1);
    EXPECT_EQ(statements(60), few);
    EXPECT_LE(few, 5);
}

TEST(WaterPicker, SelectsOnePortionOrNone)
{
    const TestPlatform platform;
    WaterPicker picker(WaterPicker::Mode::Selection);
    const QSignalSpy touches(&picker, &WaterPicker::valueChanged);
    picker.setSelected(3);
    EXPECT_TRUE(picker.buttons().at(2)->isSelected());
    EXPECT_EQ(touches.size(), 0);
    picker.touch(5);
    EXPECT_EQ(picker.selected(), 5);
    EXPECT_FALSE(picker.buttons().at(2)->isSelected());
    picker.touch(5);
    EXPECT_EQ(picker.selected(), 0);
    EXPECT_EQ(touches.size(), 2);
    picker.setSelected(12);
    EXPECT_EQ(picker.selected(), 0);
}

} // namespace kesto::test
