#pragma once

#include "model/DietDay.h"

#include <QString>

#include <memory>
#include <optional>

namespace kesto::bench
{

/// A row of a day on the heap, as a program without an object graph would keep it.
struct DayRow
{
    qint64 key = 0;
    std::optional<qint64> date;
    std::optional<float> weight, chest, hip, waist, biceps;
    std::optional<bool> chB, bO, feast;
    qint64 jornalDay = 0;
};

inline constexpr const char *kDayColumns = "_pk, date, weight, chest, hip, waist, biceps, chB, bO, feast, jornalDay";

template <class Statement>
std::unique_ptr<DayRow> readDay(const Statement &row)
{
    auto day = std::make_unique<DayRow>();
    day->key = row.integer(0);
    day->jornalDay = row.integer(10);
    if (!row.isNull(1))
        day->date = row.integer(1);
    int column = 2;
    for (auto *number : {&day->weight, &day->chest, &day->hip, &day->waist, &day->biceps}) {
        if (!row.isNull(column))
            *number = static_cast<float>(row.real(column));
        ++column;
    }
    for (auto *flag : {&day->chB, &day->bO, &day->feast}) {
        if (!row.isNull(column))
            *flag = row.integer(column) != 0;
        ++column;
    }
    return day;
}

} // namespace kesto::bench
