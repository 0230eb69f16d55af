#pragma once

#include "platform/Error.h"

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

/// Error::where is "<source>:<line>" when the bytes are no property list.
[[nodiscard]] Result<QVariant> parse(const QByteArray &bytes, const QString &source);

/// Reads a file. AtomicFile::isMissing() tells the error of one that does not exist.
[[nodiscard]] Result<QVariant> read(const QString &path);

/// The value in the types that parse() gives; nothing when it holds something that a list can't. A float becomes the
/// double that has the same shortest text, 72.3f for example 72.3.
[[nodiscard]] std::optional<QVariant> normalized(const QVariant &value);

/// The bytes of a property list; an error when the value holds something that a list can't.
[[nodiscard]] Result<QByteArray> serialize(const QVariant &value);

/// Replaces the file as AtomicFile::write() does.
[[nodiscard]] Result<void> write(const QVariant &value, const QString &path);

/// The dictionary in a file that only this program writes; empty when there is no file. A file whose content is no
/// dictionary is renamed to "<name>.damaged-<n>", which is logged, and the result is empty. An error means that the
/// file is there but can't be read now, or is damaged and can't be renamed: writing would lose its content.
[[nodiscard]] Result<QVariantMap> readOrSetAside(const QString &path);

} // namespace PropertyList

} // namespace kesto
