#include "app/WindowFixture.h"
#include "platform/Calendar.h"

#include <QAccessible>
#include <QLocale>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>

namespace kesto::test
{

namespace
{

/// The calendar of a diet that is under way, on a phone.
class CalendarWindowTest : public WindowFixture
{
protected:
    void SetUp() override
    {
        prepare(20);
        start(Device::Phone, QSize(390, 844));
    }
    /// The name of the month so many months from today's.
    static QString month(int fromToday)
    {
        const QDate day = Calendar().dayOf(QDateTime::currentDateTimeUtc()).addMonths(fromToday);
        QString name = QLocale(QStringLiteral("ru")).standaloneMonthName(day.month());
        name.front() = name.front().toUpper();
        return name + u' ' + QString::number(day.year());
    }
    [[nodiscard]] testing::AssertionResult shows(int fromToday)
    {
        return person().waitsToSee(QAccessible::Table, month(fromToday));
    }
};

TEST_F(CalendarWindowTest, AFingerTurnsTheMonths)
{
    const Person user = person();
    ASSERT_TRUE(shows(0));
    ASSERT_TRUE(user.draws(QAccessible::Table, month(0), QPoint(-150, 10)));
    ASSERT_TRUE(shows(1));
    ASSERT_TRUE(user.draws(QAccessible::Table, month(1), QPoint(-150, -10)));
    ASSERT_TRUE(shows(2));
    ASSERT_TRUE(user.draws(QAccessible::Table, month(2), QPoint(150, 0)));
    ASSERT_TRUE(shows(1));

    // Neither a short way nor one down the page.
    ASSERT_TRUE(user.draws(QAccessible::Table, month(1), QPoint(-40, 0)));
    EXPECT_TRUE(shows(1));
    ASSERT_TRUE(user.draws(QAccessible::Table, month(1), QPoint(10, -150)));
    EXPECT_TRUE(shows(1));

    ASSERT_TRUE(user.touches(QAccessible::Button, month(1))) << "the title leads back";
    EXPECT_TRUE(shows(0));
}

TEST_F(CalendarWindowTest, TheMonthHasTheKeysFromTheStartAndKeepsThem)
{
    const Person user = person();
    ASSERT_TRUE(shows(0));
    ASSERT_EQ(user.focus().toStdString(), month(0).toStdString());
    user.presses(Qt::Key_PageUp);
    ASSERT_TRUE(shows(-1));
    EXPECT_EQ(user.focus().toStdString(), month(-1).toStdString());
}

TEST_F(CalendarWindowTest, FieldsStandUnderEachOther)
{
    const Person user = person();
    ASSERT_TRUE(shows(0));
    const QList<QRect> fields = user.places(QAccessible::EditableText);
    ASSERT_GE(fields.size(), 4);
    for (const QRect &field : fields) {
        EXPECT_EQ(field.left(), fields.first().left());
        EXPECT_EQ(field.right(), fields.first().right());
    }
}

} // namespace

} // namespace kesto::test
