#include "journal/TimeObjectAdditions.h"

#include "journal/WaterVals.h"
#include "model/TimeObject.h"
#include "platform/StringFormat.h"
#include "platform/StringTables.h"

#include <array>

namespace kesto
{

namespace
{

struct Kind
{
    const char16_t *name;
    const char16_t *reminder;
    QRgb color;
    bool hasDuration; ///< its second value is one, in minutes
};

constexpr std::array<Kind, timeObjectTypeCount> kinds{{
    {u"Вода", u"Пора выпить воды", 0x2E86C1, false},
    {u"Сон", u"Вам пора отдохнуть", 0x6C5CA8, false},
    {u"Бассейн", u"Пора поплавать", 0x1495A0, true},
    {u"Бег", u"Пора на пробежку", 0xC2571A, true},
    {u"Отруби", u"Не забывайте ежедневно употреблять овсяные отруби", 0x9A7328, false},
    {u"Ходьба", u"Пора на прогулку", 0x4B8B3B, true},
    {u"Йога", u"Есть время? Займитесь йогой", 0xA8508C, false},
    {u"Фитнес", u"Есть время? Займитесь фитнесом", 0xC0394B, false},
    {u"Велосипед", u"Пора прокатиться на велосипеде", 0x5D6D7E, true},
}};

const Kind *kindOf(int type)
{
    return type >= 0 && type < timeObjectTypeCount ? &kinds.at(static_cast<size_t>(type)) : nullptr;
}

int typeOf(const TimeObject &item) { return item.type().value_or(-1); }

} // namespace

QString description(const TimeObject &item)
{
    if (item.waterType())
        return stringWithFormat("%@ %@", waterVolume(waterValsDict(), *item.waterType()),
                                localized(QStringLiteral("мл.")));
    if (item.value1() && item.value2())
        return stringWithFormat("%@ %@, %@ %@", item.value1(), prefix1(item), item.value2(), prefix2(item));
    if (item.value2())
        return stringWithFormat("%@ %@", item.value2(), prefix2(item));
    if (item.value1())
        return stringWithFormat("%@ %@", item.value1(), prefix1(item));
    return QStringLiteral("");
}

QString notificationDescription(const TimeObject &item)
{
    const Kind *kind = kindOf(typeOf(item));
    return kind != nullptr ? localized(QString::fromUtf16(kind->reminder)) : QString();
}

QString prefix1(const TimeObject &item) { return prefix1ForIndex(typeOf(item)); }

QString prefix2(const TimeObject &item) { return prefix2ForIndex(typeOf(item)); }

QString image(const TimeObject &item) { return timeObjectImageForType(typeOf(item)); }

QColor color(const TimeObject &item) { return timeObjectColorForType(typeOf(item)); }

QString timeObjectNameForType(int type)
{
    const Kind *kind = kindOf(type);
    return kind != nullptr ? localized(QString::fromUtf16(kind->name)) : QString();
}

QString timeObjectImageForType(int type)
{
    return kindOf(type) != nullptr ? stringWithFormat("ic_%@", type) : QString();
}

QColor timeObjectColorForType(int type)
{
    const Kind *kind = kindOf(type);
    return kind != nullptr ? QColor(kind->color) : QColor();
}

const QStringList &prefixs()
{
    static const QStringList units{QStringLiteral("мл."),  QStringLiteral("мин."),     QStringLiteral("м."),
                                   QStringLiteral("км."),  QStringLiteral("ст. лож."), QStringLiteral("км."),
                                   QStringLiteral("мин."), QStringLiteral("мин."),     QStringLiteral("км.")};
    return units;
}

QString prefix1ForIndex(int type) { return kindOf(type) != nullptr ? localized(prefixs().at(type)) : QString(); }

QString prefix2ForIndex(int type)
{
    const Kind *kind = kindOf(type);
    return kind != nullptr && kind->hasDuration ? localized(prefixs().at(1)) : QString();
}

} // namespace kesto
