#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QVariant>

#include <optional>
#include <type_traits>
#include <variant>

namespace kesto
{

/// What an attribute may hold. The store keeps flags as 0/1 and dates as whole milliseconds since 1970 in UTC; single
/// precision numbers are kept widened.
enum class AttributeType { Float, Integer, UnsignedInteger, Boolean, String, Date, Data };

/// The type of an attribute whose values have a C++ type.
template <class T>
[[nodiscard]] consteval AttributeType attributeTypeOf()
{
    if constexpr (std::is_same_v<T, float>)
        return AttributeType::Float;
    else if constexpr (std::is_same_v<T, int>)
        return AttributeType::Integer;
    else if constexpr (std::is_same_v<T, quint32>)
        return AttributeType::UnsignedInteger;
    else if constexpr (std::is_same_v<T, bool>)
        return AttributeType::Boolean;
    else if constexpr (std::is_same_v<T, QString>)
        return AttributeType::String;
    else if constexpr (std::is_same_v<T, QDateTime>)
        return AttributeType::Date;
    else {
        static_assert(std::is_same_v<T, QByteArray>, "the store has no such type");
        return AttributeType::Data;
    }
}

/// One stored value; monostate means absent.
using AttributeValue = std::variant<std::monostate, qint64, double, QString, QByteArray>;

/// The value to store for a variant. An invalid variant gives an absent value. Nothing if the variant does not fit the
/// type: a number of any kind fits if its value does, any other value must have exactly the attribute's type.
[[nodiscard]] std::optional<AttributeValue> attributeValue(AttributeType type, const QVariant &value);

/// Whether a value can be compared with attributes of a type. All kinds of numbers can be compared with each other.
[[nodiscard]] bool isOfType(AttributeType type, const AttributeValue &value);

/// The variant of a stored value: float, qint64, quint32, bool, QString, QDateTime (UTC) or QByteArray by type.
[[nodiscard]] QVariant toVariant(AttributeType type, const AttributeValue &value);

/// <0, 0, >0 as SQLite orders values: absent first, then numbers by value, texts by code point, bytes.
[[nodiscard]] int compareValues(const AttributeValue &left, const AttributeValue &right);

} // namespace kesto
