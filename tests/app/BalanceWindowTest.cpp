#include "app/WindowFixture.h"
#include "components/Shell.h"
#include "journal/JornalHelper.h"
#include "journal/JornalTabBarController.h"

namespace kesto::test
{

namespace
{

class BalanceWindowTest : public WindowFixture
{
protected:
    void openJournal(const QSize &size)
    {
        start(Device::Phone, size, QStringLiteral("en"));
        Shell::current()->openDetailViewController(JornalHelper::jornalTabBarVCForToday());
    }
    [[nodiscard]] testing::AssertionResult tab(const char *name)
    {
        return person().touches(QAccessible::PageTab, QString::fromUtf8(name));
    }
    [[nodiscard]] testing::AssertionResult shows(const char *text)
    {
        return person().waitsToSee(QAccessible::StaticText, QString::fromUtf8(text));
    }
    [[nodiscard]] testing::AssertionResult button(const char *name)
    {
        return person().touches(QAccessible::Button, QString::fromUtf8(name));
    }
};

TEST_F(BalanceWindowTest, APersonLogsADrinkAndThreeFoodsAndSetsATimer)
{
    prepare(3);
    openJournal(QSize(390, 844));
    ASSERT_TRUE(tab("Water"));
    ASSERT_TRUE(button("Mug, 300 ml"));
    EXPECT_TRUE(shows("300 ml/2400 ml"));
    ASSERT_TRUE(person().touches(QAccessible::CheckBox, QStringLiteral("Hot day")));
    EXPECT_TRUE(shows("300 ml/2880 ml"));

    // The slider of a portion, by the keys.
    ASSERT_TRUE(button("Change the portion volumes"));
    ASSERT_TRUE(person().waitsToSee(QAccessible::Slider, QStringLiteral("Glass, 150 ml")));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right})
        person().presses(key);
    EXPECT_TRUE(person().waitsToSee(QAccessible::Slider, QStringLiteral("Mug, 310 ml")))
        << person().focus().toStdString();
    ASSERT_TRUE(
        person().waitsUntilGone(QAccessible::Button, QStringLiteral("Next day"))); // the journal has a "Close", too
    ASSERT_TRUE(button("Close"));
    EXPECT_TRUE(shows("310 ml/2400 ml"));

    ASSERT_TRUE(tab("Protein"));
    for (const char *food : {"Cauliflower, 2.5 g", "Lamb, 16 g", "Canned tuna, 25 g"})
        ASSERT_TRUE(button(food));
    EXPECT_TRUE(shows("43 g/80 g"));
    EXPECT_TRUE(person().sees(QAccessible::Button, QStringLiteral("Lamb, 16 g, 1")));
    person().presses(Qt::Key_Right);
    person().presses(Qt::Key_Space);
    EXPECT_TRUE(shows("55 g/80 g"));
    EXPECT_EQ(person().focus(), QStringLiteral("Egg, 12.5 g, 1"));
    ASSERT_TRUE(person().touches(QAccessible::CheckBox, QStringLiteral("Light activity")));
    EXPECT_TRUE(shows("55 g/96 g"));

    ASSERT_TRUE(tab("Timer"));
    ASSERT_TRUE(button("Start"));
    EXPECT_TRUE(shows("09: 59"));
    ASSERT_TRUE(button("Pause"));

    // In a window that lies on its side, everything is there as it was left.
    openJournal(QSize(844, 390));
    ASSERT_TRUE(tab("Water"));
    EXPECT_TRUE(shows("310 ml/2400 ml"));
    ASSERT_TRUE(tab("Protein"));
    EXPECT_TRUE(shows("55 g/96 g"));
    ASSERT_TRUE(tab("Timer"));
    EXPECT_TRUE(person().waitsToSee(QAccessible::Button, QStringLiteral("Resume")));
}

} // namespace

} // namespace kesto::test
