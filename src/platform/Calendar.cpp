#include "platform/Calendar.h"

#include <QLocale>

#include <algorithm>
#include <limits>

namespace kesto
{

namespace
{

constexpr qint64 msecsPerSec = 1000;
constexpr qint64 msecsPerDay = 86'400 * msecsPerSec;

// Only offsets at absolute instants are asked of QTimeZone; how QDateTime resolves local times around a change of the
// clocks differs between its versions.
qint64 offsetAt(const QTimeZone &zone, qint64 utc)
{
    return zone.offsetFromUtc(QDateTime::fromMSecsSinceEpoch(utc, Qt::UTC)) * msecsPerSec;
}

QDateTime localClock(const QTimeZone &zone, const QDateTime &instant)
{
    const qint64 utc = instant.toMSecsSinceEpoch();
    return QDateTime::fromMSecsSinceEpoch(utc + offsetAt(zone, utc), Qt::UTC);
}

struct Resolved
{
    qint64 utc = 0;
    bool skipped = false; // the clocks never show this time; utc lies after the gap by as much as the time lay in it
    qint64 gapLength = 0;
};

Resolved resolve(const QTimeZone &zone, qint64 local)
{
    // The offsets that hold well before and well after; at most one change of the clocks lies between them.
    const qint64 before = offsetAt(zone, local - msecsPerDay);
    const qint64 after = offsetAt(zone, local + msecsPerDay);
    const bool beforeHolds = offsetAt(zone, local - before) == before;
    const bool afterHolds = offsetAt(zone, local - after) == after;
    if (beforeHolds && afterHolds)
        return {.utc = std::min(local - before, local - after)};
    if (afterHolds)
        return {.utc = local - after};
    if (beforeHolds)
        return {.utc = local - before};
    return {.utc = local - before, .skipped = after > before, .gapLength = after - before};
}

qint64 asLocal(QDate day, QTime time) { return QDateTime(day, time, Qt::UTC).toMSecsSinceEpoch(); }

QDateTime fromUtc(qint64 utc) { return QDateTime::fromMSecsSinceEpoch(utc, Qt::UTC); }

} // namespace

Calendar::Calendar()
    : Calendar(QTimeZone::systemTimeZone(), QLocale::system().firstDayOfWeek())
{
}

Calendar::Calendar(const QTimeZone &zone, Qt::DayOfWeek firstWeekday)
    : zone_(zone.isValid() ? zone : QTimeZone::utc())
    , firstWeekday_(firstWeekday)
{
}

QDate Calendar::dayOf(const QDateTime &instant) const
{
    return instant.isValid() ? localClock(zone_, instant).date() : QDate();
}

QTime Calendar::timeOf(const QDateTime &instant) const
{
    return instant.isValid() ? localClock(zone_, instant).time() : QTime();
}

QDateTime Calendar::startOfDay(QDate day) const { return firstInstant(day, QTime(0, 0)); }

QDateTime Calendar::firstInstant(QDate day, QTime time) const
{
    if (!day.isValid() || !time.isValid())
        return {};
    const Resolved wanted = resolve(zone_, asLocal(day, time));
    if (!wanted.skipped)
        return fromUtc(wanted.utc);
    // The gap ends at some second in (utc − gap, utc]: find the first one that has the later offset.
    qint64 low = (wanted.utc - wanted.gapLength) / msecsPerSec;
    qint64 high = wanted.utc / msecsPerSec;
    const qint64 later = offsetAt(zone_, wanted.utc);
    while (high - low > 1) {
        const qint64 middle = low + (high - low) / 2;
        (offsetAt(zone_, middle * msecsPerSec) == later ? high : low) = middle;
    }
    return fromUtc(high * msecsPerSec);
}

QDateTime Calendar::instant(QDate day, QTime time) const
{
    if (!day.isValid() || !time.isValid())
        return {};
    return fromUtc(resolve(zone_, asLocal(day, time)).utc);
}

QDate Calendar::firstDayOfWeek(QDate day) const
{
    return day.isValid() ? day.addDays(-((day.dayOfWeek() - firstWeekday_ + 7) % 7)) : QDate();
}

QDateTime Calendar::dateByAdding(int count, Unit unit, const QDateTime &instant) const
{
    if (!instant.isValid() || count == 0)
        return instant.toUTC();
    QDateTime clock = localClock(zone_, instant);
    // Otherwise every later day would be reached an hour after its beginning.
    if (clock.time() != QTime(0, 0) && startOfDay(clock.date()) == instant)
        clock.setTime(QTime(0, 0));
    switch (unit) {
    case Unit::Year:
        return this->instant(clock.date().addYears(count), clock.time());
    case Unit::Month:
        return this->instant(clock.date().addMonths(count), clock.time());
    case Unit::Day:
        break;
    }
    return this->instant(clock.date().addDays(count), clock.time());
}

int Calendar::wholeUnits(Unit unit, const QDateTime &from, const QDateTime &to) const
{
    if (!from.isValid() || !to.isValid())
        return 0;
    const QDate first = dayOf(from);
    const QDate last = dayOf(to);
    qint64 estimate = last.year() - first.year();
    if (unit == Unit::Month)
        estimate = estimate * 12 + last.month() - first.month();
    else if (unit != Unit::Year)
        estimate = first.daysTo(last);
    constexpr qint64 most = std::numeric_limits<int>::max() - 1;
    int count = static_cast<int>(std::clamp(estimate, -most, most));

    // The estimate goes by the days alone; the time of day takes away a unit that is not complete.
    if (from <= to) {
        while (count > 0 && dateByAdding(count, unit, from) > to)
            --count;
    } else {
        while (count < 0 && dateByAdding(count, unit, from) < to)
            ++count;
    }
    return count;
}

} // namespace kesto
