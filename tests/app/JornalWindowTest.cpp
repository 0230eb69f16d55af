#include "app/RootViewConrollerViewController.h"
#include "app/WindowFixture.h"
#include "components/Shell.h"
#include "components/Window.h"
#include "journal/JornalSheduleRootViewController.h"
#include "journal/JornalTabBarController.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"
#include "platform/Platform.h"

namespace kesto::test
{

namespace
{

class JornalWindowTest : public WindowFixture
{
protected:
    void openJournal(Device device, const QSize &size)
    {
        prepare(1);
        start(device, size, QStringLiteral("en"));
        auto made = JornalHelper::jornalTabBarVCForDate(QDateTime(QDate(2031, 5, 10), QTime(12, 0), Qt::UTC));
        jornal = made.get();
        Shell::current()->openDetailViewController(std::move(made));
        ASSERT_TRUE(heading("10 May"));
    }
    [[nodiscard]] testing::AssertionResult heading(const char *text)
    {
        return person().waitsToSee(QAccessible::Heading, QString::fromUtf8(text));
    }
    [[nodiscard]] testing::AssertionResult row(const char *name)
    {
        return person().waitsToSee(QAccessible::ListItem, QString::fromUtf8(name));
    }
    void press(std::initializer_list<Qt::Key> keys)
    {
        for (const Qt::Key key : keys)
            person().presses(key);
    }

    JornalTabBarController *jornal = nullptr;
};

TEST_F(JornalWindowTest, ADayIsKeptByTheKeysAlone)
{
    ASSERT_NO_FATAL_FAILURE(openJournal(Device::Phone, QSize(390, 844)));
    press({Qt::Key_PageDown});
    EXPECT_TRUE(heading("11 May"));
    press({Qt::Key_PageUp, Qt::Key_PageUp});
    EXPECT_TRUE(heading("9 May"));
    ASSERT_TRUE(person().draws(QAccessible::Heading, QStringLiteral("9 May"), QPoint(-100, 0)));
    EXPECT_TRUE(heading("10 May"));

    ASSERT_TRUE(row("9:00, Nothing planned"));
    press({Qt::Key_Home, Qt::Key_Down, Qt::Key_Space});
    EXPECT_EQ(person().focus(), QStringLiteral("11:00, Nothing planned"));
    EXPECT_EQ(jornal->shedule()->content()[1]->compleate(), true);
    press({Qt::Key_Return});
    EXPECT_TRUE(heading("11:00"));

    // Running, 2.5 km in 20 minutes: from field to field, and past the button that tells about it.
    press({Qt::Key_Home, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(person().focus(), QStringLiteral("Running, km"));
    person().types(QStringLiteral("2,5"));
    press({Qt::Key_Tab});
    person().types(QStringLiteral("20"));
    press({Qt::Key_Tab});
    EXPECT_EQ(person().focus(), QStringLiteral("More information: Running"));
    press({Qt::Key_Tab});
    EXPECT_EQ(person().focus(), QStringLiteral("Oat bran, tbsp"));
    press({Qt::Key_Escape, Qt::Key_End, Qt::Key_Space});
    EXPECT_TRUE(person().waitsToSee(QAccessible::CheckBox, QStringLiteral("Reminder")));
    press({Qt::Key_Escape});
    EXPECT_TRUE(row("11:00, Running 2.5 km, 20 min, Reminder"));
    EXPECT_EQ(Platform::current().notifications().scheduledLocalNotifications().size(), 1);

    // From the menu there is nothing to go back to: closing opens the first screen.
    ASSERT_TRUE(person().touches(QAccessible::Button, QStringLiteral("Close")));
    EXPECT_TRUE(heading("Diet calendar"));
}

TEST_F(JornalWindowTest, ATabletHasTheEditorBesideTheSchedule)
{
    ASSERT_NO_FATAL_FAILURE(openJournal(Device::Tablet, QSize(1180, 820)));
    ASSERT_TRUE(person().touches(QAccessible::ListItem, QStringLiteral("12:00, Nothing planned")));
    EXPECT_TRUE(heading("12:00"));
    ASSERT_TRUE(person().touches(QAccessible::EditableText, QStringLiteral("Sleep, min")));
    person().types(QStringLiteral("45"));
    // The keys lead to the next day: what was typed stays on its own.
    press({Qt::Key_PageDown});
    EXPECT_TRUE(heading("11 May"));
    EXPECT_TRUE(person().waitsUntilGone(QAccessible::Heading, QStringLiteral("12:00")));
    press({Qt::Key_PageUp});
    EXPECT_TRUE(row("12:00, Sleep 45 min"));
    ASSERT_TRUE(person().touches(QAccessible::PageTab, QStringLiteral("Timer")));
    EXPECT_TRUE(person().waitsToSee(QAccessible::Button, QStringLiteral("Start")));
    EXPECT_TRUE(row("12:00, Sleep 45 min"));
}

} // namespace

} // namespace kesto::test
