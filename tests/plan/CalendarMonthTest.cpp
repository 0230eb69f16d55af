#include "PlanFixture.h"

#include "model/JornalDay.h"

#include <QAbstractItemModelTester>

namespace kesto::test
{
namespace
{

TEST(CalendarMonth, ShowsWholeWeeksFromTheUsersFirstWeekday)
{
    for (const auto &[zone, firstWeekday, month, first, weeks] :
         {std::tuple("Europe/Berlin", Qt::Monday, QDate(2024, 3, 31), QDate(2024, 2, 26), 5),
          std::tuple("Europe/Berlin", Qt::Sunday, QDate(2024, 3, 1), QDate(2024, 2, 25), 6),
          std::tuple("Europe/Berlin", Qt::Monday, QDate(2024, 10, 1), QDate(2024, 9, 30), 5),
          std::tuple("America/New_York", Qt::Sunday, QDate(2024, 11, 3), QDate(2024, 10, 27), 5),
          std::tuple("America/Sao_Paulo", Qt::Sunday, QDate(2018, 11, 4), QDate(2018, 10, 28), 5),
          std::tuple("Asia/Kolkata", Qt::Monday, QDate(2027, 2, 1), QDate(2027, 2, 1), 4),
          std::tuple("Asia/Tehran", Qt::Saturday, QDate(2024, 6, 15), QDate(2024, 6, 1), 5)}) {
        PlanFixture program({.timeZone = zone, .firstWeekday = firstWeekday});
        CalendarMonth model;
        model.showMonth(month);
        ASSERT_EQ(model.weeks(), weeks) << month.toString().toStdString();
        ASSERT_EQ(model.rowCount(), weeks * 7);
        for (int i = 0; i < model.cells().size(); ++i) {
            const CalendarCell &cell = model.cells()[i];
            EXPECT_EQ(cell.day, first.addDays(i));
            EXPECT_EQ(cell.date, program.calendar().startOfDay(first.addDays(i)));
            EXPECT_EQ(cell.otherMonth, cell.day.month() != month.month());
            EXPECT_EQ(model.indexOf(cell.date), i) << "no day twice, whatever the clocks do";
            const int sunday1 = cell.day.dayOfWeek() % 7 + 1; // counted from Sunday as 1
            EXPECT_EQ(cell.weekday, (sunday1 + firstWeekday % 7) % 7);
        }
    }
}

TEST(CalendarMonth, WalksOverItsEdgesIntoTheNextMonths)
{
    PlanFixture program;
    CalendarMonth model;
    EXPECT_EQ(model.walk(0, 1), -1) << "no month is shown";
    struct Step
    {
        QDate from; // in March 2024, which is shown from 26 February to 31 March
        int days;
        QDate month;
    };
    const QDate february(2024, 2, 1);
    const QDate march(2024, 3, 1);
    const QDate april(2024, 4, 1);
    const Step steps[] = {
        {QDate(2024, 3, 7), 1, march},      {QDate(2024, 3, 1), -1, march},     {QDate(2024, 3, 4), -7, march},
        {QDate(2024, 2, 26), -1, february}, {QDate(2024, 2, 29), -7, february}, {QDate(2024, 3, 3), -7, february},
        {QDate(2024, 3, 31), 1, april},     {QDate(2024, 3, 25), 7, april},     {QDate(2024, 3, 31), 7, april}};
    for (const Step &step : steps) {
        model.showMonth(march);
        const int arrived = model.walk(model.indexOf(program.calendar().startOfDay(step.from)), step.days);
        ASSERT_TRUE(arrived >= 0 && arrived < model.cells().size());
        EXPECT_EQ(model.cells()[arrived].day, step.from.addDays(step.days));
        EXPECT_EQ(model.month(), step.month) << step.from.toString().toStdString() << ' ' << step.days;
    }
    model.showMonth(march);
    EXPECT_EQ(model.title(), QStringLiteral("Март 2024"));
    EXPECT_EQ(model.previousTitle(), QStringLiteral("Февраль 2024"));
    EXPECT_EQ(model.weekdayTitles()[0], QStringLiteral("пн"));
    EXPECT_EQ(model.cells()[model.indexOfToday()].day, QDate(2024, 3, 7));
    model.showMonth(QDate(2024, 5, 1));
    EXPECT_EQ(model.indexOfToday(), -1);
}

TEST(CalendarMonth, CellsShowPhaseKindJournalAndToday)
{
    PlanFixture program;
    program.storePlan(program.dayStart(2024, 3, 5), 3, 10, 10);
    const auto record = [&](int day, const char *kind) -> DietDay & {
        DietDay &made = *DietDay::dietDatWithDate(program.dayStart(2024, 3, day), program.context()).value();
        if (kind != nullptr)
            made.setValueForKey(true, QLatin1String(kind));
        return made;
    };
    record(5, "chB");
    record(8, "bO");
    record(18, "feast");
    record(9, "chB").setBO(true); // no screen makes this
    record(10, "bO").setFeast(true);
    record(11, nullptr).setFeast(false);
    program.context().insert<JornalDay>().setDay(&record(7, nullptr));
    // A day that a step of 86,400 seconds left beside its midnight belongs to no cell.
    DietDay::dietDatWithDate(program.dayStart(2024, 3, 12).addSecs(3600), program.context()).value()->setChB(true);
    ASSERT_TRUE(program.context().save());

    CalendarMonth model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.showMonth(QDate(2024, 3, 1));
    const auto cell = [&](int day) { return model.cells()[model.indexOf(program.dayStart(2024, 3, day))]; };
    for (const auto &[day, period, kind] : {std::tuple(4, -1, ""),
                                            {5, 0, "Ч/Б"},
                                            {7, 0, ""},
                                            {8, 1, "Б/О"},
                                            {9, 1, "Ч/Б"},
                                            {10, 1, "Б/О"},
                                            {11, 1, ""},
                                            {12, 1, ""},
                                            {17, 1, ""},
                                            {18, 2, "Пир"},
                                            {27, 2, ""},
                                            {28, 3, ""}}) {
        EXPECT_EQ(cell(day).dietPeriod, period) << day;
        EXPECT_EQ(cell(day).kind, QString::fromUtf8(kind)) << day;
        EXPECT_EQ(cell(day).hasJornal, day == 7) << day;
        EXPECT_EQ(cell(day).today, day == 7) << day;
        EXPECT_EQ(cell(day).enabled, day >= 5) << day;
    }
    const auto data = [&](int day, int role) {
        return model.index(model.indexOf(program.dayStart(2024, 3, day))).data(role);
    };
    EXPECT_EQ(data(4, CalendarMonth::ColorRole).value<QColor>().alpha(), 0);
    EXPECT_EQ(data(5, CalendarMonth::ColorRole).value<QColor>().name(), QStringLiteral("#d23f3f"));
    EXPECT_EQ(data(5, CalendarMonth::AccessibleNameRole), QStringLiteral("5 марта 2024, Атака, Ч/Б"));

    // From month to month with 4, 5 and 6 weeks the model tells its changes right.
    for (const QDate &month : {QDate(2027, 2, 1), QDate(2024, 9, 1), QDate(2024, 3, 1)})
        model.showMonth(month);
}

} // namespace
} // namespace kesto::test
