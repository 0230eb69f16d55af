#include "journal/TimeRowCell.h"

#include "journal/JornalSheduleRootViewController.h"
#include "journal/TimeObjectAdditions.h"
#include "journal/TimeRowAdditions.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"
#include "platform/StringTables.h"

#include <algorithm>

namespace kesto
{

namespace
{

std::vector<TimeObject *> sortedItems(const TimeRow &row)
{
    std::vector<TimeObject *> items = row.timeObjects();
    std::stable_sort(items.begin(), items.end(),
                     [](const TimeObject *one, const TimeObject *other) { return one->type() < other->type(); });
    return items;
}

} // namespace

TableRow timeRowCell(const TimeRow &row, bool isNext, bool isEdited)
{
    const bool remind = row.remind().value_or(false);
    const QString dishes = JornalSheduleRootViewController::dishesStringForTimeRow(row);
    QStringList words{timeDescription(row)};
    if (isNext)
        words.append(localized(QStringLiteral("Next in the day")));
    QVariantList items;
    for (const TimeObject *item : sortedItems(row)) {
        const QString text = description(*item);
        items.append(QVariantMap{{QStringLiteral("image"), image(*item)},
                                 {QStringLiteral("text"), text},
                                 {QStringLiteral("color"), color(*item)}});
        words.append((timeObjectNameForType(item->type().value_or(-1)) + u' ' + text).trimmed());
    }
    if (!dishes.isEmpty())
        words.append(QString(dishes).remove(u'·').replace(u'\n', QStringLiteral(", ")));
    if (!row.otherTimeObject().isEmpty())
        words.append(row.otherTimeObject());
    const QString hint = isEmpty(row) ? localized(QStringLiteral("Nothing planned")) : QString();
    if (!hint.isEmpty())
        words.append(hint);
    if (remind)
        words.append(localized(QStringLiteral("Напоминание")));
    return {.id = QString::number(row.objectID()),
            .kind = TableRow::Kind::Custom,
            .title = timeDescription(row),
            .accessory = TableRow::Accessory::CheckButton,
            .checked = row.compleate().value_or(false),
            .selected = isEdited,
            .canDelete = true,
            .placeholder = hint,
            .cell = QStringLiteral("TimeRowCell"),
            .value =
                QVariantMap{{QStringLiteral("items"), items},
                            {QStringLiteral("dishes"), dishes},
                            {QStringLiteral("other"), row.otherTimeObject()},
                            {QStringLiteral("remind"), remind},
                            {QStringLiteral("next"), isNext ? localized(QStringLiteral("Next in the day")) : QString()},
                            {QStringLiteral("name"), words.join(QStringLiteral(", "))}}};
}

} // namespace kesto
