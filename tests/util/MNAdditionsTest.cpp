#include "util/MNAdditions.h"
#include "support/TestPlatform.h"

#include <gtest/gtest.h>

using namespace kesto;
using kesto::test::TestPlatform;

namespace
{

Calendar in(const char *zone, Qt::DayOfWeek first = Qt::Monday) { return {QTimeZone(zone), first}; }
const Calendar berlin = in("Europe/Berlin");

QDateTime at(const Calendar &calendar, int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return calendar.instant(QDate(year, month, day), QTime(hour, minute, second));
}

TEST(MNAdditions, FindsDaysOfTheMonth)
{
    EXPECT_EQ(mn_beginningOfDay(at(berlin, 2024, 3, 31, 23, 59, 59), berlin), at(berlin, 2024, 3, 31));
    EXPECT_EQ(mn_beginningOfDay(at(berlin, 2024, 3, 31), berlin), at(berlin, 2024, 3, 31));
    EXPECT_EQ(mn_beginningOfDay(at(berlin, 2024, 3, 31).addMSecs(-1), berlin), at(berlin, 2024, 3, 30));
    for (int day = 1; day <= 29; ++day) {
        const QDateTime date = at(berlin, 2024, 2, day, 17, 5, 3);
        EXPECT_EQ(mn_firstDateOfMonth(date, berlin), at(berlin, 2024, 2, 1));
        EXPECT_EQ(mn_lastDateOfMonth(date, berlin), at(berlin, 2024, 2, 29));
        EXPECT_EQ(firstDateOfMonthWithCalendar(date, berlin), at(berlin, 2024, 2, 1));
    }
    EXPECT_EQ(mn_lastDateOfMonth(at(berlin, 2023, 12, 5), berlin), at(berlin, 2023, 12, 31));
    EXPECT_EQ(mn_firstDateOfMonth(at(berlin, 2024, 3, 31, 12), berlin),
              at(berlin, 2024, 3, 1)); // over the clock change

    const QDateTime february = at(berlin, 2023, 2, 10, 12);
    EXPECT_EQ(mn_dateWithDay(february, 28, berlin), at(berlin, 2023, 2, 28));
    EXPECT_EQ(mn_dateWithDay(february, 31, berlin), at(berlin, 2023, 3, 3));
    EXPECT_EQ(mn_dateWithDay(february, 0, berlin), at(berlin, 2023, 1, 31));

    // An instant is another day elsewhere.
    const QDateTime late = QDateTime(QDate(2024, 1, 31), QTime(23, 30), Qt::UTC);
    EXPECT_EQ(mn_firstDateOfMonth(late, berlin), at(berlin, 2024, 2, 1));
    EXPECT_EQ(mn_firstDateOfMonth(late, in("America/New_York")), at(in("America/New_York"), 2024, 1, 1));
}

TEST(MNAdditions, FindsTheEndsOfWeeksAndMonths)
{
    const Calendar sunday = in("Europe/Berlin", Qt::Sunday);
    const QDateTime date = at(berlin, 2024, 3, 31, 12); // a Sunday, the clocks go forward
    EXPECT_EQ(firstDateOfWeekWithCalendar(date, berlin), at(berlin, 2024, 3, 25));
    EXPECT_EQ(lastDateOfWeekWithCalendar(date, berlin), at(berlin, 2024, 3, 31, 23, 59, 59));
    EXPECT_EQ(firstDateOfWeekWithCalendar(date, sunday), at(berlin, 2024, 3, 31));
    EXPECT_EQ(lastDateOfWeekWithCalendar(date, sunday), at(berlin, 2024, 4, 6, 23, 59, 59));
    EXPECT_EQ(firstDateOfWeekWithCalendar(at(berlin, 2025, 1, 1), berlin), at(berlin, 2024, 12, 30));

    EXPECT_EQ(lastDateOfMonthWithCalendar(at(berlin, 2024, 4, 15), berlin), at(berlin, 2024, 4, 30, 23, 59, 59));
    EXPECT_EQ(lastDateOfMonthWithCalendar(at(berlin, 2024, 2, 29), berlin), at(berlin, 2024, 2, 29, 23, 59, 59));
    // Days of 86,400 seconds: an hour late in March, an hour early in October.
    EXPECT_EQ(lastDateOfMonthWithCalendar(date, berlin), at(berlin, 2024, 4, 1, 0, 59, 59));
    EXPECT_EQ(lastDateOfMonthWithCalendar(at(berlin, 2024, 10, 3), berlin), at(berlin, 2024, 10, 31, 22, 59, 59));
}

TEST(MNAdditions, ReckonsInTheCurrentCalendarWithoutAnother)
{
    const TestPlatform test({.timeZone = "Asia/Kolkata", .firstWeekday = Qt::Sunday});
    const QDateTime late = QDateTime(QDate(2024, 1, 31), QTime(19, 0), Qt::UTC); // 1 February there
    const QDateTime first = QDateTime(QDate(2024, 1, 31), QTime(18, 30), Qt::UTC);
    EXPECT_EQ(mn_beginningOfDay(late), first);
    EXPECT_EQ(mn_firstDateOfMonth(late), first);
    EXPECT_EQ(mn_lastDateOfMonth(late), first.addDays(28));
    EXPECT_EQ(mn_dateWithDay(late, 2), first.addDays(1));
    EXPECT_EQ(firstDateOfWeekWithCalendar(late), first.addDays(-4));
    EXPECT_EQ(lastDateOfWeekWithCalendar(late), first.addDays(3).addSecs(-1));
    EXPECT_EQ(lastDateOfMonthWithCalendar(late), first.addDays(29).addSecs(-1));
    EXPECT_EQ(MNFastDateEnumeration(first, late, {}, Calendar::Unit::Day).count(), 1);
}

QList<QDateTime> all(const MNFastDateEnumeration &dates)
{
    QList<QDateTime> result;
    for (const QDateTime &date : dates)
        result.append(date);
    return result;
}

TEST(MNFastDateEnumeration, YieldsEveryUnitFromTheFirstDate)
{
    const auto date = [](int month, int day, int hour = 0) { return at(berlin, 2023, month, day, hour); };
    const auto dates = [](const QDateTime &from, const QDateTime &to, Calendar::Unit unit) {
        return all({from, to, berlin, unit});
    };
    using enum Calendar::Unit;
    EXPECT_EQ(dates(date(3, 1), date(3, 1), Day), (QList{date(3, 1)}));
    EXPECT_EQ(dates(date(3, 1), date(3, 3), Day), (QList{date(3, 1), date(3, 2), date(3, 3)}));
    EXPECT_EQ(dates(date(3, 1, 12), date(3, 3), Day), (QList{date(3, 1, 12), date(3, 2, 12)}));
    EXPECT_EQ(dates(date(1, 31), date(3, 31), Month), (QList{date(1, 31), date(2, 28), date(3, 31)}));
    EXPECT_EQ(dates(date(1, 31), date(3, 30), Month), (QList{date(1, 31), date(2, 28)}));
    EXPECT_EQ(dates(at(berlin, 2020, 2, 29), at(berlin, 2022, 3, 1), Year),
              (QList{at(berlin, 2020, 2, 29), at(berlin, 2021, 2, 28), at(berlin, 2022, 2, 28)}));
    EXPECT_EQ(dates(date(3, 1), date(3, 2), static_cast<Calendar::Unit>(99)), (QList{date(3, 1), date(3, 2)}));

    const QList<QDateTime> year = dates(date(1, 1), date(12, 31), Day); // over both clock changes
    ASSERT_EQ(year.size(), 365);
    for (const QDateTime &day : year)
        ASSERT_EQ(day, mn_beginningOfDay(day, berlin));
}

TEST(MNFastDateEnumeration, GivesOutBatchesOfAtMostTheSizeAskedFor)
{
    MNFastDateEnumeration dates(at(berlin, 2024, 3, 28), at(berlin, 2024, 4, 3), berlin, Calendar::Unit::Day);
    const QList<QDateTime> whole = all(dates);
    ASSERT_EQ(whole.size(), 7);
    EXPECT_EQ(dates.nextBatch(3), whole.mid(0, 3));
    EXPECT_EQ(dates.nextBatch(0), QList<QDateTime>());
    EXPECT_EQ(dates.nextBatch(-1), QList<QDateTime>());
    EXPECT_EQ(dates.nextBatch(3), whole.mid(3, 3));
    EXPECT_EQ(all(dates), whole);
    EXPECT_EQ(dates.nextBatch(1000), whole.mid(6));
    EXPECT_EQ(dates.nextBatch(3), QList<QDateTime>());
}

} // namespace
