#include "app/MainJob.h"
#include "app/WindowFixture.h"
#include "components/Shell.h"
#include "model/DietDay.h"
#include "plan/CalculatorViewController.h"
#include "platform/Calendar.h"
#include "recipes/CartViewController.h"
#include "store/CoreDataManager.h"

#include <QAccessible>
#include <QGuiApplication>
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

// Whoever leaves the program with a field open has meant what is in it.
TEST_F(CalendarWindowTest, WhatIsBeingTypedIsStoredWhenTheProgramGoes)
{
    const auto restart = [this] { start(Device::Phone, QSize(390, 844), QStringLiteral("en")); };
    const auto openCart = [] { Shell::current()->openDetailViewController(std::make_unique<CartViewController>()); };
    restart();
    CoreDataManager::sharedManager().addIngredientToCard(QStringLiteral("tea"));
    for (const bool closes : {false, true}) {
        const auto leave = [&](const QString &field) {
            if (closes) {
                program_->view().close();
            } else {
                Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationSuspended);
                EXPECT_EQ(person().focus().toStdString(), field.toStdString()) << "for the return";
                Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
            }
            restart();
        };
        const QString typed = closes ? QStringLiteral("82") : QStringLiteral("81");
        const QString weight = QStringLiteral("Weight, kg");
        ASSERT_TRUE(person().touches(QAccessible::EditableText, weight));
        person().types(typed);
        leave(weight);
        ManagedObjectContext &context = *CoreDataManager::sharedManager().managedObjectContext();
        const Calendar calendar;
        const QDateTime today = calendar.startOfDay(calendar.dayOf(QDateTime::currentDateTimeUtc()));
        const DietDay *day = DietDay::dayWithoutCreation(today, context);
        EXPECT_EQ(day != nullptr ? day->weight() : std::nullopt, typed.toFloat()) << "closes: " << closes;

        openCart();
        const QString quantity = QStringLiteral("Quantity: tea");
        ASSERT_TRUE(person().touches(QAccessible::EditableText, quantity));
        person().types(typed);
        leave(quantity);
        EXPECT_EQ(shoppingList(), QStringList{QStringLiteral("tea=") + typed}) << "closes: " << closes;
    }
}

TEST_F(CalendarWindowTest, TheBarFollowsWhatIsTypedIntoALength)
{
    start(Device::Phone, QSize(390, 1600), QStringLiteral("en"));
    auto made = std::make_unique<CalculatorViewController>();
    CalculatorViewController &screen = *made;
    Shell::current()->openDetailViewController(std::move(made));
    const auto days = [&screen] {
        const TableRow &bar =
            screen.table()->rowAt({CalculatorViewController::PhasesSection, CalculatorViewController::phaseBarRow});
        return bar.value.toList().value(0).toMap()[QStringLiteral("days")].toInt();
    };
    const Person user = person();
    ASSERT_TRUE(user.touches(QAccessible::EditableText, QStringLiteral("1 Phase. Attack, d")));
    ASSERT_EQ(days(), 2);
    user.types(QStringLiteral("7"));
    EXPECT_EQ(days(), 7);
    user.types(QStringLiteral("5"));
    EXPECT_EQ(days(), 75);
    user.presses(Qt::Key_Backspace);
    user.presses(Qt::Key_Backspace);
    EXPECT_EQ(days(), 7) << "nothing is no number";
    EXPECT_EQ(screen.period1(), 2);
    user.presses(Qt::Key_Escape);
    EXPECT_EQ(days(), 2);
}

} // namespace

} // namespace kesto::test
