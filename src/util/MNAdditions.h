#pragma once

#include "platform/Calendar.h"

#include <QDateTime>
#include <QList>

#include <cstddef>
#include <iterator>
#include <optional>

namespace kesto
{

/// Operations on a date. All reckon in the calendar given, without one in the platform's current one.

/// 00:00 of the date's day.
[[nodiscard]] QDateTime mn_beginningOfDay(const QDateTime &date, const std::optional<Calendar> &calendar = {});
/// 00:00 of the first day of the date's month.
[[nodiscard]] QDateTime mn_firstDateOfMonth(const QDateTime &date, const std::optional<Calendar> &calendar = {});
/// 00:00 of the last day of the date's month.
[[nodiscard]] QDateTime mn_lastDateOfMonth(const QDateTime &date, const std::optional<Calendar> &calendar = {});
/// 00:00 of a day of the date's month; a number that the month does not have counts on into its neighbours.
[[nodiscard]] QDateTime mn_dateWithDay(const QDateTime &date, int day, const std::optional<Calendar> &calendar = {});

/// The start of the week, which begins on the calendar's first weekday.
[[nodiscard]] QDateTime firstDateOfWeekWithCalendar(const QDateTime &date,
                                                    const std::optional<Calendar> &calendar = {});
/// The start of the month.
[[nodiscard]] QDateTime firstDateOfMonthWithCalendar(const QDateTime &date,
                                                     const std::optional<Calendar> &calendar = {});
/// One week after the start of the week, less a second.
[[nodiscard]] QDateTime lastDateOfWeekWithCalendar(const QDateTime &date, const std::optional<Calendar> &calendar = {});
/// The start of the month and as many times 86,400 seconds as it has days, less a second. Where the clocks change
/// within the month that is an hour off its last second; callers only compare with it.
[[nodiscard]] QDateTime lastDateOfMonthWithCalendar(const QDateTime &date,
                                                    const std::optional<Calendar> &calendar = {});

/// The first date plus 0, 1, … N units, N being the number of whole units up to the second date. Each is reckoned from
/// the first, so months from a 31st stay on the 31st where there is one.
class MNFastDateEnumeration
{
public:
    /// toDate does not lie before fromDate. A unit other than the year and the month counts as the day.
    MNFastDateEnumeration(const QDateTime &fromDate, const QDateTime &toDate, const std::optional<Calendar> &calendar,
                          Calendar::Unit unit);

    class const_iterator
    {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = QDateTime;
        using difference_type = std::ptrdiff_t;
        using pointer = const QDateTime *;
        using reference = QDateTime;

        const_iterator() = default;
        const_iterator(const MNFastDateEnumeration *dates, int index)
            : dates_(dates)
            , index_(index)
        {
        }
        QDateTime operator*() const { return dates_->at(index_); }
        const_iterator &operator++()
        {
            ++index_;
            return *this;
        }
        const_iterator operator++(int) { return {dates_, index_++}; }
        bool operator==(const const_iterator &) const = default;

    private:
        const MNFastDateEnumeration *dates_ = nullptr;
        int index_ = 0;
    };

    [[nodiscard]] const_iterator begin() const { return {this, 0}; }
    [[nodiscard]] const_iterator end() const { return {this, count_}; }
    /// N + 1.
    [[nodiscard]] int count() const { return count_; }

    /// The next dates, as many as asked for at most; none when all were given out.
    [[nodiscard]] QList<QDateTime> nextBatch(int maxCount);

private:
    [[nodiscard]] QDateTime at(int index) const { return calendar_.dateByAdding(index, unit_, fromDate_); }

    QDateTime fromDate_;
    Calendar calendar_;
    Calendar::Unit unit_;
    int count_ = 0;
    int given_ = 0; // by nextBatch()
};

} // namespace kesto
