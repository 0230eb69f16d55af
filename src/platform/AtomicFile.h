#pragma once

#include "platform/Error.h"

#include <QByteArray>
#include <QString>

namespace kesto
{

/// Files that only the user may read and that are replaced whole or not at all: the program's settings and exports.
/// Errors carry the system's errno. Any thread.
namespace AtomicFile
{

/// The whole content. A file that does not exist is an error for which isMissing() is true; every other error means
/// that the content is unknown, so do not write to the file then.
[[nodiscard]] Result<QByteArray> read(const QString &path);
[[nodiscard]] bool isMissing(const Error &error);

/// Replaces the file, with mode 0600. On success the content and its name are on disk. After an error the file holds
/// either the old or the new content, completely.
[[nodiscard]] Result<void> write(const QByteArray &bytes, const QString &path);

/// Removes the temporary files of this path that a process left which was killed inside write(). No other thread or
/// process may be writing the file. Failures are logged.
void removeLeftOvers(const QString &path);

} // namespace AtomicFile

/// Creates a folder and the missing ones above it, all with mode 0700. Nothing happens to one that exists.
[[nodiscard]] Result<void> makePrivateFolder(const QString &path);

} // namespace kesto
