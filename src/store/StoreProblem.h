#pragma once

#include "platform/Error.h"

#include <QString>

namespace kesto
{

/// Why the store file could not be opened.
struct StoreProblem
{
    enum class Kind {
        Damaged, ///< or no database of this program
        Newer,   ///< written by a newer version of the program
        InUse,   ///< by another process
        NoSpace,
        NoPermission, ///< the file or its folder cannot be written
        Other
    };

    Kind kind = Kind::Other;
    QString path;   ///< of the store file
    QString reason; ///< what the system answered, in English
};

/// The problem behind an error that the coordinator returned for a store file.
[[nodiscard]] StoreProblem storeProblem(const QString &path, const Error &error);

/// The name under which setStoreAside() would keep the file now: "<path>.damaged-<n>", n above those in use.
[[nodiscard]] QString pathForStoreCopy(const QString &path);

/// Renames a store file that is not open, together with its write-ahead log, and returns the new path. Never replaces
/// an earlier copy. If the process dies between the two renames, the next start must call finishSettingAside().
[[nodiscard]] Result<QString> setStoreAside(const QString &path);

/// Moves a log whose store file was set aside to that copy. A new store file would otherwise delete it.
[[nodiscard]] Result<void> finishSettingAside(const QString &path);

} // namespace kesto
