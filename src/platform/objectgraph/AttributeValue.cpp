#include "platform/objectgraph/AttributeValue.h"

#include <cmath>
#include <limits>

namespace kesto
{

namespace
{

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

/// Nothing if the number has a fraction or does not fit.
std::optional<qint64> wholeNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::ULong:
    case QMetaType::ULongLong: {
        const qulonglong number = value.toULongLong();
        return number <= static_cast<qulonglong>(std::numeric_limits<qint64>::max())
                   ? std::optional(static_cast<qint64>(number))
                   : std::nullopt;
    }
    case QMetaType::Float:
    case QMetaType::Double: {
        const double number = value.toDouble();
        if (std::abs(number) >= 0x1p63 || std::trunc(number) != number) // NaN included
            return std::nullopt;
        return static_cast<qint64>(number);
    }
    default:
        return value.toLongLong();
    }
}

} // namespace

std::optional<AttributeValue> attributeValue(AttributeType type, const QVariant &value)
{
    if (!value.isValid() || value.isNull())
        return AttributeValue{};
    switch (type) {
    case AttributeType::Float: {
        const float number = value.toFloat();
        return isNumber(value) && !std::isnan(number) ? std::optional<AttributeValue>(static_cast<double>(number))
                                                      : std::nullopt;
    }
    case AttributeType::Integer:
    case AttributeType::UnsignedInteger: {
        const auto number = isNumber(value) ? wholeNumber(value) : std::nullopt;
        if (!number ||
            (type == AttributeType::UnsignedInteger && (*number < 0 || *number > std::numeric_limits<quint32>::max())))
            return std::nullopt;
        return AttributeValue(*number);
    }
    case AttributeType::Boolean:
        return isNumber(value) ? std::optional<AttributeValue>(static_cast<qint64>(value.toBool())) : std::nullopt;
    case AttributeType::String:
        return value.typeId() == QMetaType::QString ? std::optional<AttributeValue>(value.toString()) : std::nullopt;
    case AttributeType::Date: {
        if (value.typeId() != QMetaType::QDateTime)
            return std::nullopt;
        const QDateTime date = value.toDateTime();
        return date.isValid() ? AttributeValue(date.toMSecsSinceEpoch()) : AttributeValue();
    }
    case AttributeType::Data:
        return value.typeId() == QMetaType::QByteArray ? std::optional<AttributeValue>(value.toByteArray())
                                                       : std::nullopt;
    }
    return std::nullopt;
}

bool isOfType(AttributeType type, const AttributeValue &value)
{
    switch (type) {
    case AttributeType::String:
        return std::holds_alternative<QString>(value);
    case AttributeType::Data:
        return std::holds_alternative<QByteArray>(value);
    default:
        return std::holds_alternative<qint64>(value) || std::holds_alternative<double>(value);
    }
}

QVariant toVariant(AttributeType type, const AttributeValue &value)
{
    if (const auto *text = std::get_if<QString>(&value))
        return *text;
    if (const auto *bytes = std::get_if<QByteArray>(&value))
        return *bytes;
    if (const auto *number = std::get_if<double>(&value))
        return QVariant::fromValue(static_cast<float>(*number));
    const auto *number = std::get_if<qint64>(&value);
    if (number == nullptr)
        return {};
    switch (type) {
    case AttributeType::Boolean:
        return *number != 0;
    case AttributeType::UnsignedInteger:
        return QVariant::fromValue(static_cast<quint32>(*number));
    case AttributeType::Date:
        return QDateTime::fromMSecsSinceEpoch(*number, Qt::UTC);
    default:
        return QVariant::fromValue(*number);
    }
}

namespace
{

template <class T>
int order(const T &left, const T &right)
{
    return left < right ? -1 : (right < left ? 1 : 0);
}

// UTF-16 units order like code points except that surrogates come before U+E000 … U+FFFF.
int compareByCodePoint(const QString &left, const QString &right)
{
    const qsizetype common = qMin(left.size(), right.size());
    for (qsizetype i = 0; i < common; ++i) {
        const QChar a = left[i];
        const QChar b = right[i];
        if (a == b)
            continue;
        if (a.isSurrogate() != b.isSurrogate())
            return a.isSurrogate() ? 1 : -1;
        return a < b ? -1 : 1;
    }
    return order(left.size(), right.size());
}

int rank(const AttributeValue &value)
{
    constexpr int ranks[] = {0, 1, 1, 2, 3}; // by alternative: absent, two kinds of numbers, text, bytes
    return ranks[value.index()];
}

} // namespace

int compareValues(const AttributeValue &left, const AttributeValue &right)
{
    if (rank(left) != rank(right))
        return order(rank(left), rank(right));
    if (left.index() == right.index()) {
        if (const auto *number = std::get_if<qint64>(&left))
            return order(*number, std::get<qint64>(right));
        if (const auto *number = std::get_if<double>(&left))
            return order(*number, std::get<double>(right));
        if (const auto *text = std::get_if<QString>(&left))
            return compareByCodePoint(*text, std::get<QString>(right));
        if (const auto *bytes = std::get_if<QByteArray>(&left))
            return order(*bytes, std::get<QByteArray>(right));
        return 0;
    }
    const auto number = [](const AttributeValue &value) {
        const auto *whole = std::get_if<qint64>(&value);
        return whole != nullptr ? static_cast<double>(*whole) : std::get<double>(value);
    };
    return order(number(left), number(right));
}

} // namespace kesto
