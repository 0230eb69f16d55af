// The screen of a day when another day is loaded into it.

#include "DietDayFixture.h"

#include <QPointer>

namespace kesto::test
{
namespace
{

class ChangingDayTest : public DietDayScreenTest
{
protected:
    /// Opens the wheels and leaves them turning: they come to a row when they are asked for it.
    QPointer<PickerComponent> openTurning(int row)
    {
        screen->selectRow(Screen::DaySection, Screen::weightRow);
        EXPECT_TRUE(screen->hasInlinePicker());
        PickerComponent *wheel = screen->picker()->components()[0];
        QObject::connect(screen->picker(), &Picker::shouldSettle, wheel, [wheel, row] { wheel->select(row); });
        return wheel;
    }
    [[nodiscard]] std::optional<float> weight(int day)
    {
        const DietDay *found = record(day);
        return found != nullptr ? found->weight() : std::nullopt;
    }
};

TEST_F(ChangingDayTest, TurningWheelsCountForTheDayTheyWereOpenedFor)
{
    open();
    QPointer<PickerComponent> late = openTurning(31);
    screen->setDate(march(8), attack);
    EXPECT_FALSE(screen->hasInlinePicker());
    EXPECT_EQ(weight(7), 71.0F);
    ASSERT_FALSE(late.isNull());
    late->select(50);
    const QPointer<PickerComponent> next = openTurning(32);
    ASSERT_FALSE(late.isNull());
    late->select(51);
    EXPECT_EQ(weight(7), 71.0F);
    EXPECT_EQ(weight(8), std::nullopt) << "the wheels of the day before are not heard";
    EXPECT_EQ(screen->picker()->selectedRow(0), 31);

    screen->setDate(march(8), cruise);
    EXPECT_FALSE(screen->hasInlinePicker());
    EXPECT_EQ(weight(8), 72.0F);

    late = openTurning(33);
    screen->setDisbledDay(true);
    EXPECT_FALSE(screen->hasInlinePicker());
    EXPECT_EQ(weight(8), 73.0F);
    ASSERT_FALSE(late.isNull());
    late->select(52);
    screen->setDisbledDay(false);
    late->select(52);
    EXPECT_FALSE(screen->hasInlinePicker());
    EXPECT_EQ(weight(8), 73.0F);
}

TEST_F(ChangingDayTest, TurningWheelsCountWhenTheScreenIsLeft)
{
    open();
    (void)openTurning(31);
    stack->pushViewController(std::make_unique<ViewController>(), false);
    EXPECT_EQ(weight(7), 71.0F);
    EXPECT_FALSE(program.context().hasChanges());
    stack->popViewController(false);
    reopen();
    (void)openTurning(32);
    reopen();
    EXPECT_EQ(weight(7), 72.0F);
}

TEST_F(ChangingDayTest, ADayIsBuiltOnceAndOnlyTheOneThatIsShown)
{
    CalendarViewController &calendar = openBesideTheMonth();
    int built = 0;
    QObject::connect(screen, &Screen::contentChanged, [&built] { ++built; });
    const auto touch = [&](int number) {
        built = 0;
        calendar.touchCell(calendar.month()->indexOf(march(number)));
        return built;
    };
    const auto toDayBeforeTheStart = [&] {
        built = 0;
        calendar.updateUIForDate(march(1), -1);
        return built;
    };
    EXPECT_EQ(touch(8), 1);
    EXPECT_EQ(screen->date(), march(8));
    program.context().deleteObject(*record(8));
    EXPECT_EQ(touch(9), 1);
    EXPECT_EQ(record(8), nullptr) << "the day that was left is not made anew";

    program.context().deleteObject(*record(9));
    EXPECT_LE(toDayBeforeTheStart(), 1);
    EXPECT_TRUE(screen->disbledDay());
    const QStringList days = program.days();
    screen->addDish(catalogueDish("A"));
    screen->autoFillDay();
    screen->setDate(march(2), -1);
    EXPECT_EQ(screen->day(), nullptr);
    EXPECT_EQ(program.days(), days) << "a disabled day has no record";
    EXPECT_EQ(screen->table()->rowCount(), 0);

    EXPECT_EQ(touch(10), 1);
    EXPECT_EQ(screen->title(), QStringLiteral("10 марта"));
    EXPECT_EQ(screen->table()->numberOfSections(), 3);
    EXPECT_EQ(record(9), nullptr);
    EXPECT_EQ(record(2), nullptr);
    EXPECT_NE(record(10), nullptr);
}

TEST_F(ChangingDayTest, AnEditThatEmptiesADayLeavesNoRecord)
{
    CalendarViewController &calendar = openBesideTheMonth();
    for (const int kind : {0, 0})
        calendar.footer()->buttonTouched(kind);
    EXPECT_EQ(program.days(), QStringList());
    EXPECT_EQ(shownKinds(), "0");
    EXPECT_EQ(shown(Screen::DaySection, 0).detail, QStringLiteral("-"));
    calendar.footer()->endEditing(0, QStringLiteral("80"));
    EXPECT_EQ(shown(Screen::DaySection, 0).detail, QStringLiteral("80.0 кг"));
    calendar.footer()->endEditing(0, {});
    EXPECT_EQ(program.days(), QStringList());
    screen->selectRow(Screen::DaySection, 1);
    EXPECT_EQ(program.days(), texts({"2024-03-07 00:00 chB bO=NO feast=NO"})) << "the next edit creates it again";
}

} // namespace
} // namespace kesto::test
