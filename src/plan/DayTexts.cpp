#include "plan/DayTexts.h"

#include "plan/CalculatorWheels.h"
#include "platform/Platform.h"
#include "platform/StringFormat.h"
#include "platform/StringTables.h"

#include <QLocale>

namespace kesto
{

QString dayTitle(const QDateTime &date)
{
    const Platform &platform = Platform::current();
    const QLocale locale(platform.strings().preferredLanguage());
    return locale.toString(platform.calendar().dayOf(date), QStringLiteral("dd MMMM"));
}

QString weightText(const std::optional<float> &kilograms, bool metrickSystem, const QString &unit)
{
    if (!kilograms)
        return QStringLiteral("-");
    return stringWithFormat("%0.1f %@", metrickSystem ? *kilograms : *kilograms / kilogramsPerPound, unit);
}

} // namespace kesto
