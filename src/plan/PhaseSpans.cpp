#include "plan/PhaseSpans.h"

#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "store/CoreDataManager.h"

#include <QDate>
#include <QLocale>

#include <algorithm>
#include <array>

namespace kesto
{

QList<PhaseSpan> phaseSpans(int period1, int period2, int period3)
{
    // A negative length makes the next phase begin earlier; the days belong to the earlier phase.
    QList<PhaseSpan> spans;
    qint64 sum = 0;
    qint64 taken = 0;
    int phase = 0;
    for (const int length : {period1, period2, period3}) {
        sum += length;
        if (sum > taken) {
            spans.append({phase, taken, sum - taken});
            taken = sum;
        }
        ++phase;
    }
    spans.append({phase, taken, std::nullopt});
    return spans;
}

QVariantList phaseBar(const QList<PhaseSpan> &spans, const QDate &start)
{
    const QLocale locale(Platform::current().strings().preferredLanguage());
    const auto dayText = [&](const QDate &day, int knownYear) {
        QString text =
            locale.toString(day, day.year() == knownYear ? QStringLiteral("d MMM") : QStringLiteral("d MMM yyyy"));
        return text.replace(u' ', QChar::Nbsp); // lines break only after the dash
    };
    QVariantList bar;
    for (const PhaseSpan &span : spans) {
        const QDate first = start.addDays(span.firstDay);
        const QDate last = first.addDays(span.days.value_or(1) - 1);
        QString dates = dayText(first, span.days > 1 && first.year() == last.year() ? last.year() : start.year());
        if (!span.days)
            dates += QStringLiteral("\u00a0–\u00a0…");
        else if (last > first)
            dates += QStringLiteral("\u00a0– ") + dayText(last, start.year());
        bar.append(QVariantMap{
            {QStringLiteral("name"), CoreDataManager::periodNameForDietPeriod(span.phase)},
            {QStringLiteral("color"), CoreDataManager::colorForPeriod(span.phase).value_or(QColor())},
            {QStringLiteral("dates"), dates},
            {QStringLiteral("days"), span.days.value_or(0)},
        });
    }
    return bar;
}

} // namespace kesto
