#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>

namespace kesto
{

/// XML property lists (the format of Apple's PropertyList-1.0 DTD). A value is a QVariantList, a QVariantMap, a
/// QString, a qint64, a double, a bool, a QDateTime (UTC, whole seconds in the file) or a QByteArray. Where values are
/// taken, other whole numbers, float, QStringList and a null text (written as an empty one) will do as well. Characters
/// that XML has no form for, half surrogate pairs for example, are written as U+FFFD. Any thread.
namespace PropertyList
{

/// Nothing, and the log line "<source>:<line>: <reason>", when the bytes are no property list.
[[nodiscard]] std::optional<QVariant> parse(const QByteArray &bytes, const QString &source);

/// Reads a file; a missing file gives nothing, too, and a log line.
[[nodiscard]] std::optional<QVariant> read(const QString &path);

/// The value in the types that parse() gives; nothing when it holds something that a list can't. A float becomes the
/// double that has the same shortest text, 72.3f for example 72.3.
[[nodiscard]] std::optional<QVariant> normalized(const QVariant &value);

/// The bytes of a property list; nothing, and a log line, when the value holds something that a list can't.
[[nodiscard]] std::optional<QByteArray> serialize(const QVariant &value);

/// Replaces the file whole, synced to disk, readable and writable by the user only. False, and a log line, on failure;
/// the old file stays then.
[[nodiscard]] bool write(const QVariant &value, const QString &path);

/// For files that the program itself writes: the dictionary in the file, empty when there is no file. One that can't be
/// read as a dictionary is renamed to "<name>.damaged-<n>", which is logged, and the result is empty.
[[nodiscard]] QVariantMap readOrKeepAside(const QString &path);

} // namespace PropertyList

} // namespace kesto
