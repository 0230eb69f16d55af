#include "util/MNAdditions.h"

#include "platform/Platform.h"

#include <algorithm>

namespace kesto
{

namespace
{

const Calendar &orCurrent(const std::optional<Calendar> &calendar)
{
    return calendar ? *calendar : Platform::current().calendar();
}

QDate firstOfMonth(QDate day) { return {day.year(), day.month(), 1}; }

} // namespace

QDateTime mn_beginningOfDay(const QDateTime &date, const std::optional<Calendar> &calendar)
{
    const Calendar &used = orCurrent(calendar);
    return used.startOfDay(used.dayOf(date));
}

QDateTime mn_firstDateOfMonth(const QDateTime &date, const std::optional<Calendar> &calendar)
{
    return mn_dateWithDay(date, 1, calendar);
}

QDateTime mn_lastDateOfMonth(const QDateTime &date, const std::optional<Calendar> &calendar)
{
    const Calendar &used = orCurrent(calendar);
    return used.startOfDay(firstOfMonth(used.dayOf(date)).addMonths(1).addDays(-1));
}

QDateTime mn_dateWithDay(const QDateTime &date, int day, const std::optional<Calendar> &calendar)
{
    const Calendar &used = orCurrent(calendar);
    return used.startOfDay(firstOfMonth(used.dayOf(date)).addDays(qint64(day) - 1));
}

QDateTime firstDateOfWeekWithCalendar(const QDateTime &date, const std::optional<Calendar> &calendar)
{
    const Calendar &used = orCurrent(calendar);
    return used.startOfDay(used.firstDayOfWeek(used.dayOf(date)));
}

QDateTime firstDateOfMonthWithCalendar(const QDateTime &date, const std::optional<Calendar> &calendar)
{
    return mn_dateWithDay(date, 1, calendar);
}

QDateTime lastDateOfWeekWithCalendar(const QDateTime &date, const std::optional<Calendar> &calendar)
{
    const Calendar &used = orCurrent(calendar);
    return used.dateByAdding(7, Calendar::Unit::Day, firstDateOfWeekWithCalendar(date, used)).addSecs(-1);
}

QDateTime lastDateOfMonthWithCalendar(const QDateTime &date, const std::optional<Calendar> &calendar)
{
    const Calendar &used = orCurrent(calendar);
    const int days = used.dayOf(date).daysInMonth();
    return firstDateOfMonthWithCalendar(date, used).addSecs(qint64(days) * 86'400 - 1);
}

MNFastDateEnumeration::MNFastDateEnumeration(const QDateTime &fromDate, const QDateTime &toDate,
                                             const std::optional<Calendar> &calendar, Calendar::Unit unit)
    : fromDate_(fromDate)
    , calendar_(orCurrent(calendar))
    , unit_(unit)
{
    Q_ASSERT(fromDate <= toDate);
    count_ = std::max(calendar_.wholeUnits(unit, fromDate, toDate) + 1, 0);
}

QList<QDateTime> MNFastDateEnumeration::nextBatch(int maxCount)
{
    const int last = given_ + std::min(std::max(maxCount, 0), count_ - given_);
    QList<QDateTime> batch;
    batch.reserve(last - given_);
    while (given_ < last)
        batch.append(at(given_++));
    return batch;
}

} // namespace kesto
