#pragma once

#include <QList>
#include <QVariantList>

#include <optional>

class QDate;

namespace kesto
{

/// The days of a phase, counted from the first day of the diet.
struct PhaseSpan
{
    int phase = 0;
    qint64 firstDay = 0;
    std::optional<qint64> days; ///< absent: without end
    bool operator==(const PhaseSpan &) const = default;
};

/// The phases that have at least one day, given the lengths of the first three. Agrees with
/// CoreDataManager::dietPeriodForCalendar(). The last one is Stabilization.
[[nodiscard]] QList<PhaseSpan> phaseSpans(int period1, int period2, int period3);

/// The spans for a view, of a diet that starts on a day: dictionaries with "name", "color", "dates" and "days"
/// (0 without end).
[[nodiscard]] QVariantList phaseBar(const QList<PhaseSpan> &spans, const QDate &start);

} // namespace kesto
