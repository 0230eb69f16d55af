#include "components/DatePicker.h"
#include "support/TestPlatform.h"

#include <gtest/gtest.h>

namespace kesto::test
{

namespace
{
QString shown(const Picker &picker)
{
    QStringList parts;
    for (const PickerComponent *component : picker.components())
        parts.append(component->titles().value(component->selectedRow()));
    return parts.join(QLatin1Char(' '));
}
} // namespace

class PickerTest : public testing::Test
{
protected:
    TestPlatform platform;
};

TEST_F(PickerTest, AWheelStaysInItsRange)
{
    Picker picker;
    QStringList turned;
    QObject::connect(&picker, &Picker::selected, &picker,
                     [&](int row, int component) { turned.append(QStringLiteral("%1/%2").arg(row).arg(component)); });
    const QStringList letters{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    picker.setContent({letters, {}, letters}, {9, 0, -4});
    EXPECT_EQ(picker.selectedRow(0), 2);
    EXPECT_EQ(picker.selectedRow(1), -1);
    EXPECT_EQ(picker.selectedRow(2), 0);
    PickerComponent *wheel = picker.components().at(2);
    for (int row : {-1, 3, 0, 2, 2})
        wheel->select(row);
    picker.components().at(1)->select(0);
    const QStringList chosen{QStringLiteral("0/2"), QStringLiteral("2/2"), QStringLiteral("2/2")};
    EXPECT_EQ(turned, chosen) << "the row that stands there may be chosen, too";
    wheel->setTitles({QStringLiteral("only")});
    EXPECT_EQ(picker.selectedRow(2), 0);
    picker.setContent({letters}, {1});
    EXPECT_EQ(picker.components().size(), 1);
    EXPECT_EQ(turned, chosen); // the program turning is not the user
}

TEST_F(PickerTest, ADayMovesWithinItsMonth)
{
    DatePicker picker(DatePicker::Mode::Date);
    EXPECT_EQ(shown(picker), QStringLiteral("7 март 2024"));
    picker.setDate(platform.date(2024, 1, 31, 15, 45));
    picker.components().at(1)->select(1); // February
    EXPECT_EQ(picker.date(), platform.date(2024, 2, 29, 15, 45));
    EXPECT_EQ(picker.components().at(0)->titles().size(), 29);
    picker.components().at(2)->select(picker.selectedRow(2) + 1);
    EXPECT_EQ(shown(picker), QStringLiteral("28 февраль 2025"));
    picker.components().at(0)->select(0);
    EXPECT_EQ(picker.date(), platform.date(2025, 2, 1, 15, 45));
    picker.setDate(platform.date(1900, 12, 31)); // beyond the years that it began with
    EXPECT_EQ(shown(picker), QStringLiteral("31 декабрь 1900"));
}

TEST_F(PickerTest, ATimeGoesInSteps)
{
    DatePicker picker(DatePicker::Mode::Time, 5);
    EXPECT_EQ(shown(picker), QStringLiteral("10 30")); // now, in Berlin
    picker.setDate(platform.date(2024, 3, 7, 23, 59, 58));
    EXPECT_EQ(shown(picker), QStringLiteral("23 55"));
    EXPECT_EQ(picker.date(), platform.date(2024, 3, 7, 23, 55));
    picker.components().at(1)->select(1);
    picker.components().at(0)->select(0);
    EXPECT_EQ(picker.date(), platform.date(2024, 3, 7, 0, 5));
    // The night when the clocks go forward has no half past two.
    picker.setDate(platform.date(2024, 3, 31, 1, 30));
    picker.components().at(0)->select(2);
    EXPECT_EQ(shown(picker), QStringLiteral("03 30"));
}

TEST_F(PickerTest, ASpanIsNeverNothing)
{
    DatePicker picker(DatePicker::Mode::CountDownTimer);
    EXPECT_EQ(picker.countDownDuration(), 60);
    const struct
    {
        int set;
        int becomes;
    } cases[] = {{0, 60}, {59, 60}, {60, 60}, {119, 60}, {3600, 3600}, {86400, 86340}, {100000, 86340}};
    for (const auto &each : cases) {
        picker.setCountDownDuration(each.set);
        EXPECT_EQ(picker.countDownDuration(), each.becomes) << each.set;
    }
    picker.setCountDownDuration(3600);
    picker.components().at(1)->select(30);
    EXPECT_EQ(picker.countDownDuration(), 5400);
    picker.components().at(0)->select(0);
    picker.components().at(1)->select(0);
    EXPECT_EQ(picker.countDownDuration(), 60);
    EXPECT_EQ(shown(picker), QStringLiteral("0 ч. 01 мин."));
}

} // namespace kesto::test
