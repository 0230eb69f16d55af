#pragma once

#include <QString>

namespace kesto
{

/// The folder of the pictures that come with the program.
[[nodiscard]] QString imagesFolder();
/// The path of a file in a folder; null when there is none. Names come from catalogues, and one that would lead out of
/// the folder names nothing.
[[nodiscard]] QString fileInFolder(const QString &folder, const QString &name);
/// The file name of the photo that has a name; null where the program has none.
[[nodiscard]] QString photoNamed(const QString &name);

} // namespace kesto
