#include "platform/Calendar.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <tuple>

using namespace kesto;

namespace
{

QDateTime utc(const char *text) { return QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate).toUTC(); }
QDate day(const char *text) { return QDate::fromString(QString::fromLatin1(text), Qt::ISODate); }
Calendar in(const char *zone, Qt::DayOfWeek first = Qt::Monday) { return {QTimeZone(zone), first}; }

TEST(Calendar, StartsDaysWhereTheClocksOfTheZoneDo)
{
    struct Case
    {
        const char *zone;
        const char *day;
        const char *start;
    };
    const Case cases[] = {
        {"Europe/Berlin", "2024-01-15", "2024-01-14T23:00:00Z"},
        {"Europe/Berlin", "2024-03-31", "2024-03-30T23:00:00Z"}, // the day that the clocks go forward
        {"Europe/Berlin", "2024-04-01", "2024-03-31T22:00:00Z"},
        {"Europe/Berlin", "2024-10-27", "2024-10-26T22:00:00Z"}, // and back
        {"Europe/Berlin", "2024-10-28", "2024-10-27T23:00:00Z"},
        {"America/New_York", "2024-03-10", "2024-03-10T05:00:00Z"},
        {"America/New_York", "2024-03-11", "2024-03-11T04:00:00Z"},
        {"Asia/Kolkata", "2024-06-01", "2024-05-31T18:30:00Z"},
        {"America/Sao_Paulo", "2018-11-03", "2018-11-03T03:00:00Z"},
        {"America/Sao_Paulo", "2018-11-04", "2018-11-04T03:00:00Z"}, // no midnight: 23:59:59 and then 01:00
        {"America/Sao_Paulo", "2018-11-05", "2018-11-05T02:00:00Z"},
        {"America/Sao_Paulo", "2018-02-18", "2018-02-18T03:00:00Z"}, // 23:00 to 24:00 comes twice on the day before
        {"America/Havana", "2023-11-05", "2023-11-05T04:00:00Z"},    // 00:00 to 01:00 comes twice
        {"Pacific/Apia", "2011-12-31", "2011-12-30T10:00:00Z"},      // the 30th did not take place
        {"Pacific/Apia", "2011-12-30", "2011-12-30T10:00:00Z"},
        {"America/Toronto", "1919-03-31", "1919-03-31T04:30:00Z"}, // 23:30 to 00:30 is skipped
        {"Europe/Berlin", "2090-07-01", "2090-06-30T22:00:00Z"},   // by the rule, beyond the table of changes
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(c.zone) + ' ' + c.day);
        const Calendar calendar = in(c.zone);
        const QDateTime start = calendar.startOfDay(day(c.day));
        EXPECT_EQ(start, utc(c.start));
        EXPECT_EQ(start.timeSpec(), Qt::UTC);
        EXPECT_LT(calendar.dayOf(start.addMSecs(-1)), day(c.day));
        EXPECT_GE(calendar.dayOf(start), day(c.day));
    }
    EXPECT_EQ(in("America/Sao_Paulo").timeOf(utc("2018-11-04T03:00:00Z")), QTime(1, 0));
}

TEST(Calendar, EveryDayOfTenYearsHoldsItsOwnStart)
{
    for (const char *zone :
         {"Europe/Berlin", "America/New_York", "America/Sao_Paulo", "Asia/Kolkata", "Australia/Lord_Howe"}) {
        const Calendar calendar = in(zone);
        QDateTime previous;
        for (QDate one(2014, 1, 1); one.year() < 2024; one = one.addDays(1)) {
            const QDateTime start = calendar.startOfDay(one);
            ASSERT_EQ(calendar.dayOf(start), one) << zone;
            ASSERT_LT(calendar.dayOf(start.addMSecs(-1)), one) << zone;
            ASSERT_TRUE(!previous.isValid() || std::abs(previous.secsTo(start) - 86'400) <= 3600) << zone;
            previous = start;
        }
    }
}

TEST(Calendar, ReadsTimesThatAreSkippedOrComeTwice)
{
    struct Case
    {
        const char *zone;
        const char *day;
        QTime time;
        const char *instant;
    };
    const Case cases[] = {
        {"Europe/Berlin", "2024-03-31", {1, 59, 59}, "2024-03-31T00:59:59Z"},
        {"Europe/Berlin", "2024-03-31", {2, 0}, "2024-03-31T01:00:00Z"},  // reads 03:00
        {"Europe/Berlin", "2024-03-31", {2, 30}, "2024-03-31T01:30:00Z"}, // reads 03:30
        {"Europe/Berlin", "2024-03-31", {3, 0}, "2024-03-31T01:00:00Z"},
        {"Europe/Berlin", "2024-10-27", {2, 0}, "2024-10-27T00:00:00Z"}, // the first of two
        {"Europe/Berlin", "2024-10-27", {2, 59, 59}, "2024-10-27T00:59:59Z"},
        {"Europe/Berlin", "2024-10-27", {3, 0}, "2024-10-27T02:00:00Z"},
        {"America/New_York", "2024-03-10", {2, 15}, "2024-03-10T07:15:00Z"},
        {"America/New_York", "2024-11-03", {1, 30}, "2024-11-03T05:30:00Z"},
        {"America/Sao_Paulo", "2018-11-04", {0, 20}, "2018-11-04T03:20:00Z"},
        {"Asia/Kolkata", "2024-03-10", {5, 29, 59}, "2024-03-09T23:59:59Z"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(c.zone) + ' ' + c.day + ' ' + c.time.toString().toStdString());
        EXPECT_EQ(in(c.zone).instant(day(c.day), c.time), utc(c.instant));
    }
    EXPECT_FALSE(in("UTC").instant(QDate(), QTime(1, 0)).isValid());
    EXPECT_FALSE(in("UTC").startOfDay(QDate()).isValid());
    EXPECT_EQ(in("Not/AZone").startOfDay(day("2024-01-01")), utc("2024-01-01T00:00:00Z"));
}

TEST(Calendar, FindsTheFirstDayOfAWeek)
{
    for (int offset = 0; offset < 7; ++offset) {
        const QDate monday = day("2024-02-26");
        EXPECT_EQ(in("UTC", Qt::Monday).firstDayOfWeek(monday.addDays(offset)), monday);
        EXPECT_EQ(in("UTC", Qt::Sunday).firstDayOfWeek(monday.addDays(offset - 1)), monday.addDays(-1));
        EXPECT_EQ(in("UTC", Qt::Saturday).firstDayOfWeek(monday.addDays(offset - 2)), monday.addDays(-2));
    }
}

TEST(Calendar, AddsUnitsByTheClockOnTheWall)
{
    using enum Calendar::Unit;
    struct Case
    {
        const char *zone;
        const char *from;
        int count;
        Calendar::Unit unit;
        const char *to;
    };
    const Case cases[] = {
        {"Europe/Berlin", "2024-03-30T11:00:00Z", 1, Day, "2024-03-31T10:00:00Z"},   // 12:00 stays 12:00
        {"Europe/Berlin", "2024-03-30T01:30:00Z", 1, Day, "2024-03-31T01:30:00Z"},   // 02:30 is skipped
        {"Europe/Berlin", "2024-10-27T01:30:00Z", 0, Day, "2024-10-27T01:30:00Z"},   // the second 02:30 stays
        {"Europe/Berlin", "2024-10-28T01:30:00Z", -1, Day, "2024-10-27T00:30:00Z"},  // the first is meant
        {"Europe/Berlin", "2024-01-30T23:00:00Z", 1, Month, "2024-02-28T23:00:00Z"}, // 31 January to 29 February
        {"Europe/Berlin", "2024-01-30T23:00:00Z", 2, Month, "2024-03-30T23:00:00Z"}, // and on to 31 March
        {"Europe/Berlin", "2024-01-30T23:00:00Z", -11, Month, "2023-02-27T23:00:00Z"},
        {"UTC", "2024-02-29T08:00:00Z", 1, Year, "2025-02-28T08:00:00Z"},
        {"UTC", "2024-02-29T08:00:00Z", 4, Year, "2028-02-29T08:00:00Z"},
        {"UTC", "2024-12-31T08:00:00Z", 366, Day, "2026-01-01T08:00:00Z"},
        {"America/Sao_Paulo", "2018-11-03T03:00:00Z", 1, Day, "2018-11-04T03:00:00Z"}, // midnight becomes 01:00
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(c.zone) + ' ' + c.from + ' ' + std::to_string(c.count));
        EXPECT_EQ(in(c.zone).dateByAdding(c.count, c.unit, utc(c.from)), utc(c.to));
    }
    const QDateTime odd = utc("2024-05-05T05:05:05Z").addMSecs(123);
    EXPECT_EQ(in("Asia/Kolkata").dateByAdding(1, Month, odd), utc("2024-06-05T05:05:05Z").addMSecs(123));
}

TEST(Calendar, CountsWholeUnitsTowardZero)
{
    using enum Calendar::Unit;
    struct Case
    {
        const char *from;
        const char *to;
        Calendar::Unit unit;
        int count;
    };
    const Case cases[] = {
        // in Berlin
        {"2024-03-01T10:00:00Z", "2024-03-01T10:00:00Z", Day, 0},
        {"2024-03-01T10:00:00Z", "2024-03-02T09:59:59Z", Day, 0},
        {"2024-03-01T10:00:00Z", "2024-03-02T10:00:00Z", Day, 1},
        {"2024-03-30T23:00:00Z", "2024-03-31T22:00:00Z", Day, 1}, // 23 hours are a day
        {"2024-10-26T22:00:00Z", "2024-10-27T22:00:00Z", Day, 0}, // 24 hours are none
        {"2024-10-26T22:00:00Z", "2024-10-27T23:00:00Z", Day, 1},
        {"2024-03-02T10:00:00Z", "2024-03-01T10:00:01Z", Day, 0},
        {"2024-03-02T10:00:00Z", "2024-03-01T10:00:00Z", Day, -1},
        {"2024-01-31T12:00:00Z", "2024-02-29T12:00:00Z", Month, 1},
        {"2024-01-31T12:00:00Z", "2024-03-30T12:00:00Z", Month, 1},
        {"2024-01-31T12:00:00Z", "2024-03-31T11:00:00Z", Month, 2}, // 13:00 in both
        {"2024-03-31T12:00:00Z", "2024-02-29T13:00:00Z", Month, -1},
        {"2024-03-31T12:00:00Z", "2024-01-31T13:00:01Z", Month, -1},
        {"2024-02-29T12:00:00Z", "2025-02-28T12:00:00Z", Year, 1},
        {"2024-06-01T12:00:00Z", "2034-05-31T12:00:00Z", Year, 9},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(c.from) + ' ' + c.to);
        EXPECT_EQ(in("Europe/Berlin").wholeUnits(c.unit, utc(c.from), utc(c.to)), c.count);
    }
    EXPECT_EQ(in("UTC").wholeUnits(Day, QDateTime(), utc("2024-01-01T00:00:00Z")), 0);
}

TEST(Calendar, CountsCivilDaysAroundEveryChangeOfTheClocks)
{
    using enum Calendar::Unit;
    const QDateTime first(QDate(2000, 1, 1), QTime(0, 0), Qt::UTC);
    const QDateTime last(QDate(2041, 1, 1), QTime(0, 0), Qt::UTC);
    std::set<std::tuple<int, int, QTime>> seen; // the same change takes place in many zones and years
    for (const QByteArray &id : QTimeZone::availableTimeZoneIds()) {
        const QTimeZone zone(id);
        const Calendar calendar(zone, Qt::Monday);
        for (const QTimeZone::OffsetData &change : zone.transitions(first, last)) {
            const int before = zone.offsetFromUtc(change.atUtc.addSecs(-1));
            if (!seen.emplace(before, change.offsetFromUtc, calendar.timeOf(change.atUtc)).second)
                continue;
            const QDate around = calendar.dayOf(change.atUtc);
            for (QDate one = around.addDays(-2); one <= around.addDays(2); one = one.addDays(1)) {
                const QDateTime start = calendar.startOfDay(one);
                if (calendar.dayOf(start) != one)
                    continue; // a day that did not take place
                for (const int distance : {-31, -2, -1, 1, 2, 31}) {
                    const QDate other = one.addDays(distance);
                    const QDateTime end = calendar.startOfDay(other);
                    if (calendar.dayOf(end) != other)
                        continue;
                    ASSERT_EQ(calendar.wholeUnits(Day, start, end), distance)
                        << id.toStdString() << ' ' << one.toString(Qt::ISODate).toStdString();
                    ASSERT_EQ(calendar.dateByAdding(distance, Day, start), end)
                        << id.toStdString() << ' ' << one.toString(Qt::ISODate).toStdString();
                }
            }
        }
    }
    EXPECT_GT(seen.size(), 200U);
}

} // namespace
