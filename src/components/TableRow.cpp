#include "components/TableRow.h"

namespace kesto
{

QVariantList TableLine::badgeValues() const
{
    QVariantList values;
    for (const Badge &badge : badges)
        values.append(QVariantMap{{QStringLiteral("text"), badge.text}, {QStringLiteral("color"), badge.color}});
    return values;
}

} // namespace kesto
