#pragma once

#include <QDate>
#include <QDateTime>
#include <QTimeZone>

namespace kesto
{

/// A gregorian calendar in a time zone with a first day of the week: the only place where instants become days, weeks
/// and months. Instants go in and come out in UTC. A value type; safe to copy to any thread.
class Calendar
{
public:
    enum class Unit { Year, Month, Day };

    /// The device's zone and its locale's first weekday.
    Calendar();
    Calendar(const QTimeZone &zone, Qt::DayOfWeek firstWeekday);

    [[nodiscard]] const QTimeZone &timeZone() const { return zone_; }
    [[nodiscard]] Qt::DayOfWeek firstWeekday() const { return firstWeekday_; }

    /// The day and the time that an instant reads on a clock in the zone.
    [[nodiscard]] QDate dayOf(const QDateTime &instant) const;
    [[nodiscard]] QTime timeOf(const QDateTime &instant) const;

    /// The first instant of a day: 00:00, or where the clocks skip midnight that day the first instant after the gap.
    [[nodiscard]] QDateTime startOfDay(QDate day) const;

    /// The instant that a clock reads as day and time. A time that the clocks skip moves forward by the gap; of a time
    /// that they show twice the first is meant.
    [[nodiscard]] QDateTime instant(QDate day, QTime time) const;

    /// The same, but a time that the clocks skip becomes the first instant after the gap.
    [[nodiscard]] QDateTime firstInstant(QDate day, QTime time) const;

    /// The first day of the week that holds the day.
    [[nodiscard]] QDate firstDayOfWeek(QDate day) const;

    /// The instant a number of units away with the same time of day; a day that the target month lacks becomes its
    /// last. The beginning of a day without midnight counts as midnight, so the beginnings of days lead to beginnings.
    [[nodiscard]] QDateTime dateByAdding(int count, Unit unit, const QDateTime &instant) const;

    /// The largest number of whole units (toward zero) that can be added to `from` without passing `to`. Between the
    /// beginnings of two days that is the number of civil days, whatever the clocks do.
    [[nodiscard]] int wholeUnits(Unit unit, const QDateTime &from, const QDateTime &to) const;

    bool operator==(const Calendar &) const = default;

private:
    QTimeZone zone_;
    Qt::DayOfWeek firstWeekday_;
};

} // namespace kesto
