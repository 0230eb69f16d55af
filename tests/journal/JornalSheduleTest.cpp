#include "journal/JornalFixture.h"

#include "journal/Reminders.h"
#include "journal/TimeRowAdditions.h"
#include "objectgraph/StatementLog.h"

namespace kesto::test
{

namespace
{

const QString sameTime = QStringLiteral("На это время уже есть запись. Выберите другое время.");
constexpr int delay = 500;

class JornalShedule : public JornalFixture
{
protected:
    /// A plan whose phase 0 lasts from the 5th to the 9th.
    void startDiet()
    {
        program.defaults().setValue(march(5), Keys::kStartDietDateKey);
        program.defaults().setInteger(5, Keys::kPeriod1Key);
        program.defaults().setInteger(10, Keys::kPeriod2Key);
        program.defaults().setInteger(10, Keys::kPeriod3Key);
        program.manager().setStartDietDay(march(5));
    }
    /// One dish in each of the categories that a day is made of, and a second starter.
    void cook(std::initializer_list<int> categories)
    {
        int number = 0;
        for (const int order : categories) {
            const QString name = QStringLiteral("dish %1").arg(++number);
            DishesCategory *category = program.manager().dishesCategoryForIndex(order);
            if (category == nullptr) {
                category = &program.context().insert<DishesCategory>();
                category->setDisplayOrder(static_cast<quint32>(order));
            }
            auto &dish = program.context().insert<Dish>();
            dish.setNameRU(name);
            dish.setDietPeriod(QStringLiteral("0123"));
            dish.setDishCategory(category);
        }
        EXPECT_TRUE(program.context().save());
    }
    template <class Entity>
    size_t count()
    {
        return program.context().template fetchOrLog<Entity>().size();
    }
};

TEST_F(JornalShedule, ADayHasItsSixRowsAndLeavesNothingBehind)
{
    open();
    EXPECT_EQ(times(), QStringLiteral("9:00 11:00 12:00 14:00 18:00 20:00"));
    EXPECT_EQ(row(0).userCreated(), std::nullopt);
    EXPECT_EQ(jornal->titleStepper()->text(), QStringLiteral("7 мар."));
    kill();
    open();
    EXPECT_EQ(times(), QStringLiteral("9:00 11:00 12:00 14:00 18:00 20:00"));
    EXPECT_NE(record(7), nullptr);
    jornal->leftBarButtonItems().constLast()->trigger();
    EXPECT_EQ(stack->viewControllers().size(), 1);
    EXPECT_EQ(record(7), nullptr);
    EXPECT_EQ(count<TimeRow>() + count<JornalDay>() + count<DietDay>(), 0);
}

TEST_F(JornalShedule, LeavingKeepsWhatTheDayHolds)
{
    struct Case
    {
        const char *what;
        std::function<void(JornalDay &)> give;
        size_t days, journals, rows;
    };
    const Case cases[] = {
        {"nothing", [](JornalDay &) {}, 0, 0, 0},
        {"hot day", [](JornalDay &day) { day.setHotDay(true); }, 1, 1, 0},
        {"no sport", [](JornalDay &day) { day.setSportDay(false); }, 1, 1, 0},
        {"activity", [](JornalDay &day) { day.setMeatSportActivity(2); }, 1, 1, 0},
        {"text", [this](JornalDay &) { row(3).setOtherTimeObject(QStringLiteral("tea")); }, 1, 1, 1},
        {"weight", [](JornalDay &day) { day.day()->setWeight(80); }, 1, 0, 0},
        {"biceps", [](JornalDay &day) { day.day()->setBiceps(30); }, 0, 0, 0},
        {"water and protein",
         [this](JornalDay &day) {
             day.addWaterObjects(program.context().insert<FoodObject>());
             day.addMeatObjects(program.context().insert<FoodObject>());
         },
         0, 0, 0},
        {"done", [this](JornalDay &) { shedule().compleateButtonTouchedInRow(0); }, 0, 0, 0},
    };
    for (const Case &each : cases) {
        open();
        each.give(*shedule().jornalDay());
        leave();
        EXPECT_EQ(count<DietDay>(), each.days) << each.what;
        EXPECT_EQ(count<JornalDay>(), each.journals) << each.what;
        EXPECT_EQ(count<TimeRow>(), each.rows) << each.what;
        EXPECT_EQ(count<FoodObject>(), 0) << each.what;
        EXPECT_FALSE(program.context().hasChanges() && each.days == 0) << each.what;
        for (DietDay *day : program.context().fetchOrLog<DietDay>())
            program.context().deleteObject(*day);
        for (JornalDay *day : program.context().fetchOrLog<JornalDay>())
            program.context().deleteObject(*day);
        program.context().saveOrKeepChanges();
    }
}

TEST_F(JornalShedule, AddsATimeOnce)
{
    open();
    jornal->rightBarButtonItems().constLast()->trigger();
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->buttonTitles(), texts({"Отменить", "Добавить"}));
    EXPECT_EQ(program.platform.calendar().timeOf(alert()->datePicker()->date()), QTime(10, 30));
    pick(12, 5, 0);
    EXPECT_EQ(shedule().content().size(), 6U);

    for (const auto &[hour, minute] : {std::pair(12, 5), std::pair(0, 0), std::pair(23, 55)}) {
        shedule().addTimeRow();
        pick(hour, minute);
        EXPECT_EQ(alert(), nullptr);
    }
    EXPECT_EQ(times(), QStringLiteral("0:00 9:00 11:00 12:00 12:05 14:00 18:00 20:00 23:55"));
    EXPECT_EQ(row(4).userCreated(), true);
    row(4).setOtherTimeObject(QStringLiteral("tea"));

    for (const auto &[hour, minute] : {std::pair(12, 0), std::pair(12, 5)}) {
        shedule().addTimeRow();
        pick(hour, minute);
        EXPECT_EQ(alert(), nullptr);
        QTest::qWait(delay + 100);
        EXPECT_EQ(dismissAlert(), sameTime);
    }
    EXPECT_EQ(shedule().content().size(), 9U);

    reopen();
    EXPECT_EQ(times(), QStringLiteral("9:00 11:00 12:00 12:05 14:00 18:00 20:00"));
    EXPECT_EQ(row(3).userCreated(), true);

    // A journal that is closed meanwhile says nothing.
    shedule().addTimeRow();
    pick(9, 0);
    leave();
    QTest::qWait(delay + 100);
    EXPECT_EQ(alert(), nullptr);
}

TEST_F(JornalShedule, DeletingARowTakesItsItemsAndItsReminderAlong)
{
    cook({1});
    open();
    auto &planned = program.context().insert<DishInDietDay>();
    planned.setDish(program.context().fetchOrLog<Dish>().front());
    row(5).addDishesInDietDay(planned);
    TimeRowDetailViewController &editor = edit(5);
    editor.endEditing(3, QStringLiteral("2"));
    editor.switchReminding(true);
    editor.close();
    ASSERT_EQ(program.platform.notifications().scheduledLocalNotifications().size(), 1);

    shedule().deleteRowByUser(0, 5);
    EXPECT_EQ(times(), QStringLiteral("9:00 11:00 12:00 14:00 18:00"));
    EXPECT_TRUE(program.platform.notifications().scheduledLocalNotifications().isEmpty());
    EXPECT_EQ(count<TimeObject>() + count<DishInDietDay>(), 0);
    EXPECT_EQ(count<Dish>(), 1);
    jornal->helper()->goToNextDay();
    jornal->helper()->goToPrevisiousDay();
    EXPECT_EQ(times(), QStringLiteral("9:00 11:00 12:00 14:00 18:00 20:00"));
}

TEST_F(JornalShedule, WhatIsDoneIsSavedAndTheNextRowStandsOut)
{
    open();
    const auto next = [this] { return shedule().nextRow(); };
    const QSignalSpy changes(&shedule(), &JornalSheduleRootViewController::rowsChanged);
    EXPECT_EQ(next(), 1);
    EXPECT_FALSE(shedule().table()->rowAt({0, 1}).value.toMap().value(QStringLiteral("next")).toString().isEmpty());
    shedule().touchAccessory(0, 1);
    EXPECT_EQ(next(), 2);
    EXPECT_TRUE(shedule().table()->rowAt({0, 1}).checked);
    EXPECT_EQ(changes.size(), 1);
    row(1).setOtherTimeObject(QStringLiteral("tea"));
    reopen();
    EXPECT_EQ(row(1).compleate(), true);
    shedule().touchAccessory(0, 1);
    EXPECT_EQ(row(1).compleate(), false);
    EXPECT_EQ(next(), 1);
    shedule().compleateButtonTouchedInRow(6);
    open(8);
    EXPECT_EQ(next(), -1);
}

TEST_F(JornalShedule, MovesFromDayToDay)
{
    open();
    row(0).setOtherTimeObject(QStringLiteral("tea"));
    jornal->titleStepper()->next()->trigger();
    EXPECT_EQ(jornal->titleStepper()->text(), QStringLiteral("8 мар."));
    EXPECT_EQ(shedule().dietDay(), record(8));
    EXPECT_EQ(jornal->water()->jornalDay(), record(8)->jornalDay());
    EXPECT_EQ(jornal->protein()->dietDay(), record(8));
    EXPECT_EQ(times().size(), QStringLiteral("9:00 11:00 12:00 14:00 18:00 20:00").size());
    jornal->titleStepper()->previous()->trigger();
    EXPECT_EQ(record(8), nullptr);
    EXPECT_EQ(row(0).otherTimeObject(), QStringLiteral("tea"));

    // Days of 23 and of 25 hours.
    for (const QDate &day : {QDate(2024, 3, 30), QDate(2024, 10, 26), QDate(2024, 12, 31)}) {
        const auto start = [&](int later) {
            const QDate other = day.addDays(later);
            return program.platform.date(other.year(), other.month(), other.day());
        };
        open(start(0));
        for (const int later : {1, 2, 3}) {
            jornal->helper()->goToNextDay();
            EXPECT_EQ(shedule().dietDay()->date(), start(later));
        }
        for (const int later : {2, 1, 0}) {
            jornal->helper()->goToPrevisiousDay();
            EXPECT_EQ(shedule().dietDay()->date(), start(later));
        }
    }
}

TEST_F(JornalShedule, TwoJournalsOfADayDoNotTakeItFromEachOther)
{
    open();
    auto other = JornalHelper::jornalTabBarVCForToday();
    jornal->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(other->shedule()->content().size(), 6U);
    EXPECT_NE(other->shedule()->jornalDay(), nullptr);
    other.reset();
    EXPECT_EQ(record(7), nullptr);
}

TEST_F(JornalShedule, SummarisesWaterAndProtein)
{
    open();
    EXPECT_EQ(shedule().waterText(), QStringLiteral("Вода: --\nНорма: 2400"));
    EXPECT_EQ(shedule().proteinText(), QStringLiteral("Белок: --\nНорма: 80"));
    EXPECT_EQ(shedule().waterFraction(), 0);
    edit(0).waterValueChanged(8);
    stack->popViewController(false);
    EXPECT_EQ(shedule().waterText(), QStringLiteral("Вода: --\nНорма: 2400"));
    shedule().touchAccessory(0, 0);
    EXPECT_EQ(shedule().waterText(), QStringLiteral("Вода: 1000\nНорма: 2400"));
    EXPECT_DOUBLE_EQ(shedule().waterFraction(), 1000.0 / 2400);
    jornal->protein()->meatButtonTouched(5);
    jornal->protein()->meatButtonTouched(5);
    EXPECT_EQ(shedule().proteinText(), QStringLiteral("Белок: 90\nНорма: 80"));
    EXPECT_EQ(shedule().proteinFraction(), 1);
    jornal->helper()->goToNextDay();
    EXPECT_EQ(shedule().proteinText(), QStringLiteral("Белок: --\nНорма: 80"));
}

TEST_F(JornalShedule, FillsADayOfTheFirstPhases)
{
    cook({1, 1, 2, 3, 5, 7});
    open();
    EXPECT_TRUE(shedule().autoFillTitle().isEmpty());
    startDiet();
    open();
    EXPECT_EQ(shedule().autoFillTitle(), QStringLiteral("Автонаполнение Атаки"));
    const LogCapture log;
    shedule().autoFillDay();
    EXPECT_EQ(log.lines().constFirst(), QStringLiteral("start autofilin"));
    EXPECT_EQ(log.lines().constLast(), QStringLiteral("end autofilin"));
    edit(2).endEditing(4, QStringLiteral("3"));
    stack->popViewController(false);
    shedule().autoFillDay();
    for (const int filled : {0, 1, 2, 4, 5})
        EXPECT_EQ(dishesOf(filled).count(u'·'), 1) << filled;
    EXPECT_EQ(dishesOf(3), QString());
    EXPECT_EQ(dishesOf(1), QStringLiteral("·dish 3"));
    EXPECT_EQ(items(2), texts({"3 ст. лож."}));
    EXPECT_EQ(items(4), texts({"30 мин."}));
    EXPECT_EQ(row(4).timeObjects().front()->value1(), std::nullopt);
    EXPECT_EQ(count<DishInDietDay>(), 5);
    EXPECT_FALSE(program.context().hasChanges());

    open(10);
    EXPECT_EQ(shedule().autoFillTitle(), QStringLiteral("Автонаполнение Круиза"));
    shedule().autoFillDay();
    EXPECT_EQ(items(2), texts({"2 ст. лож."}));
    open(20);
    EXPECT_TRUE(shedule().autoFillTitle().isEmpty());
}

TEST_F(JornalShedule, FillingStopsAtTheLastDish)
{
    startDiet();
    cook({2, 3});
    open();
    auto &planned = program.context().insert<DishInDietDay>();
    planned.setDish(program.context().fetchOrLog<Dish>().front());
    row(4).addDishesInDietDay(planned);
    shedule().deleteRowByUser(0, 0);
    shedule().autoFillDay();
    EXPECT_EQ(dishesOf(0), QStringLiteral("·dish 1"));
    EXPECT_EQ(dishesOf(1), QStringLiteral("·dish 2"));
    EXPECT_EQ(dishesOf(3), QStringLiteral("·dish 1"));
    EXPECT_EQ(dishesOf(4), QString());
    EXPECT_EQ(items(1), texts({"1.5 ст. лож."}));
    EXPECT_EQ(items(3), texts({"30 мин."}));
}

TEST_F(JornalShedule, ATabletShowsTheScheduleBesideTheTabOrTheEditor)
{
    openOnTablet();
    EXPECT_TRUE(shedule().isVisible());
    EXPECT_TRUE(jornal->water()->isVisible());
    jornal->showTab(JornalTabBarController::ProteinTab);
    EXPECT_TRUE(jornal->protein()->isVisible());
    TimeRowDetailViewController &editor = edit(1);
    EXPECT_TRUE(editor.isVisible());
    EXPECT_FALSE(jornal->protein()->isVisible());
    editor.endEditing(3, QStringLiteral("5"));
    EXPECT_EQ(items(1), texts({"5 км."}));
    EXPECT_TRUE(shedule().table()->rowAt({0, 1}).selected);
    Window::sharedWindow().back();
    EXPECT_TRUE(jornal->protein()->isVisible());
    EXPECT_EQ(stack->topViewController(), jornal);

    (void)edit(1);
    shedule().deleteRowByUser(0, 1);
    EXPECT_EQ(jornal->editor(), nullptr);
    (void)edit(1);
    jornal->helper()->goToNextDay();
    EXPECT_EQ(jornal->editor(), nullptr);
    Window::sharedWindow().setSize({390, 844});
    EXPECT_FALSE(jornal->protein()->isVisible() && shedule().isVisible());
    Window::sharedWindow().back();
    EXPECT_EQ(stack->viewControllers().size(), 1);
    EXPECT_EQ(record(8), nullptr);
}

TEST_F(JornalShedule, TakesAsManyStatementsForADayOfSixtyRowsAsForOneOfAFew)
{
    const auto statements = [this](int day, int rows) {
        JornalDay &journal = *JornalHelper::dietDayForDate(march(day))->jornalDay();
        for (const int hour : {9, 11, 12, 14, 18, 20}) {
            auto &made = program.context().insert<TimeRow>();
            made.setTime(static_cast<float>(hour));
            journal.addTimeRows(made);
        }
        for (int i = 0; i < rows; ++i) {
            auto &made = program.context().insert<TimeRow>();
            made.setTime(static_cast<float>(i) / 100);
            journal.addTimeRows(made);
            auto &item = program.context().insert<TimeObject>();
            item.setType(3);
            made.addTimeObjects(item);
            auto &planned = program.context().insert<DishInDietDay>();
            planned.setDish(&program.context().insert<Dish>());
            made.addDishesInDietDay(planned);
        }
        EXPECT_TRUE(program.context().save());
        program.restart();
        StatementLog log;
        program.restart();
        (void)record(1);
        (void)log.take();
        open(day);
        return log.count();
    };
    const qsizetype few = statements(7, 1);
    EXPECT_EQ(statements(8, 60), few);
    EXPECT_LE(few, 12);
}

} // namespace

} // namespace kesto::test
