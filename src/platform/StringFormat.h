#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QVariant>

#include <concepts>
#include <optional>
#include <type_traits>

namespace kesto
{

/// The text of a format whose placeholders are %@ (any value in its plain textual form), %d, %ld, %lu (whole numbers),
/// %f and %0.2f … (numbers, the point as decimal sign whatever the locale) and %%. Absent values read "(null)" for %@
/// and 0 otherwise; dates read "2026-01-31 22:30:00 +0000". More placeholders than arguments, or fewer, is a
/// programmer's error: the surplus is dropped and asserted in debug builds. The format is UTF-8.
[[nodiscard]] QString stringWithFormat(const char *format, const QList<QVariant> &arguments);

/// The form of a value that %@ writes.
[[nodiscard]] QString plainText(const QVariant &value);

namespace detail
{
template <class T>
QVariant formatArgument(const T &value)
{
    if constexpr (std::is_enum_v<T>)
        return QVariant::fromValue(static_cast<qint64>(value));
    else
        return QVariant::fromValue(value);
}
template <class T>
QVariant formatArgument(const std::optional<T> &value)
{
    return value ? formatArgument(*value) : QVariant();
}
inline QVariant formatArgument(const char *value) { return QString::fromUtf8(value); }
} // namespace detail

template <class... Arguments>
requires(sizeof...(Arguments) == 0 || !(... && std::same_as<Arguments, QList<QVariant>>)) [[nodiscard]] QString
    stringWithFormat(const char *format, const Arguments &...arguments)
{
    return stringWithFormat(format, QList<QVariant>{detail::formatArgument(arguments)...});
}

} // namespace kesto
