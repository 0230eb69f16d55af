#pragma once

#include "components/AlertCenter.h"
#include "components/NavigationController.h"
#include "components/TitleStepper.h"
#include "components/Window.h"
#include "journal/FoodBalanceRootViewController.h"
#include "journal/JornalSheduleRootViewController.h"
#include "journal/JornalTabBarController.h"
#include "journal/TimeRowDetailViewController.h"
#include "journal/WaterBalanceRootViewController.h"
#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "model/FoodObject.h"
#include "model/JornalDay.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"
#include "platform/StringTables.h"
#include "store/StoreFixture.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace kesto::test
{

/// A program in whose window a journal can be opened; its clock stands at 7 March 2024, 10:30.
class JornalFixture : public testing::Test
{
protected:
    explicit JornalFixture(TestPlatform::Options options = {})
        : program(std::move(options))
    {
    }
    ~JornalFixture() override { leave(); }

    [[nodiscard]] QDateTime march(int day) const { return program.platform.date(2024, 3, day); }
    [[nodiscard]] DietDay *record(const QDateTime &date)
    {
        return DietDay::dayWithoutCreation(date, program.context());
    }
    [[nodiscard]] DietDay *record(int day) { return record(march(day)); }

    /// The journal of a day over another screen, on a phone or a tablet.
    void open(const QDateTime &date, const QSize &size = {390, 844})
    {
        leave();
        Window::sharedWindow().setSize(size);
        auto navigation = std::make_unique<NavigationController>(std::make_unique<ViewController>());
        stack = navigation.get();
        Window::sharedWindow().setRootViewController(std::move(navigation));
        auto made = JornalHelper::jornalTabBarVCForDate(date);
        jornal = made.get();
        stack->pushViewController(std::move(made), false);
    }
    void open(int day = 7) { open(march(day)); }
    void openOnTablet() { open(march(7), {1180, 820}); }
    /// Out of every screen.
    void leave()
    {
        Window::sharedWindow().setRootViewController(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        jornal = nullptr;
        stack = nullptr;
    }
    /// The process dies: nobody leaves the day.
    void kill()
    {
        program.settle();
        program.restart();
        leave();
    }
    void reopen(int day = 7)
    {
        leave();
        program.restart();
        open(day);
    }

    [[nodiscard]] JornalSheduleRootViewController &shedule() { return *jornal->shedule(); }
    /// The times of the rows that the table shows.
    [[nodiscard]] QString times()
    {
        QStringList texts;
        for (int row = 0; row < shedule().table()->numberOfRowsInSection(0); ++row)
            texts.append(shedule().table()->rowAt({0, row}).title);
        return texts.join(u' ');
    }
    [[nodiscard]] TimeRow &row(int index) { return *shedule().content()[static_cast<size_t>(index)]; }
    [[nodiscard]] TimeRowDetailViewController &edit(int index)
    {
        shedule().selectRow(0, index);
        auto *editor = jornal->isSideBySide()
                           ? qobject_cast<TimeRowDetailViewController *>(
                                 static_cast<NavigationController *>(jornal->editor())->topViewController())
                           : qobject_cast<TimeRowDetailViewController *>(stack->topViewController());
        if (editor == nullptr)
            throw std::runtime_error("the row did not open");
        return *editor;
    }
    /// The items of a row as the schedule lists them.
    [[nodiscard]] QStringList items(int index)
    {
        QStringList texts;
        const QVariantMap shown = shedule().table()->rowAt({0, index}).value.toMap();
        for (const QVariant &item : shown.value(QStringLiteral("items")).toList())
            texts.append(item.toMap().value(QStringLiteral("text")).toString());
        return texts;
    }
    [[nodiscard]] QString dishesOf(int index)
    {
        return JornalSheduleRootViewController::dishesStringForTimeRow(row(index));
    }

    [[nodiscard]] static ShownAlert *alert() { return AlertCenter::sharedCenter().current(); }
    /// Its title and message; answers it with its only button.
    static QString dismissAlert()
    {
        if (alert() == nullptr)
            return {};
        const QString text = alert()->title() + alert()->message();
        EXPECT_EQ(alert()->buttonTitles(), QStringList{localized(QStringLiteral("Ok"))});
        alert()->answer(0);
        return text;
    }
    /// Picks a time in the dialog that is shown.
    void pick(int hour, int minute, int button = 1)
    {
        ASSERT_NE(alert(), nullptr);
        DatePicker &picker = *alert()->datePicker();
        picker.components()[0]->select(hour);
        picker.components()[1]->select(minute / 5);
        alert()->answer(button);
    }

    StoreFixture program;
    JornalTabBarController *jornal = nullptr;
    NavigationController *stack = nullptr;
};

} // namespace kesto::test
