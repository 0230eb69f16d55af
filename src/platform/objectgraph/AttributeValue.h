#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>
#include <variant>

namespace kesto
{

/// What an attribute may hold. The store keeps flags as 0/1 and dates as whole milliseconds since 1970 in UTC; single
/// precision numbers are kept widened.
enum class AttributeType { Float, Integer, UnsignedInteger, Boolean, String, Date, Data };

/// One stored value; monostate is absent.
using AttributeValue = std::variant<std::monostate, qint64, double, QString, QByteArray>;

/// A value for an attribute of a type. An invalid variant is absent; nothing when the variant can't be such a value:
/// numbers of any kind fit where their value does, everything else is of its own type only.
[[nodiscard]] std::optional<AttributeValue> attributeValue(AttributeType type, const QVariant &value);

/// Whether an attribute of a type can be compared with a value: a number with a number of any kind, and so on.
[[nodiscard]] bool isOfType(AttributeType type, const AttributeValue &value);

/// The variant of a stored value: float, qint64, quint32, bool, QString, QDateTime (UTC) or QByteArray by type.
[[nodiscard]] QVariant toVariant(AttributeType type, const AttributeValue &value);

/// <0, 0, >0 as SQLite orders values: absent first, then numbers by value, texts by code point, bytes.
[[nodiscard]] int compareValues(const AttributeValue &left, const AttributeValue &right);

} // namespace kesto
