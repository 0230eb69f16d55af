#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

namespace kesto
{

/// The program's fixed content, and its lists in sections. A list of sections holds dictionaries with "section name"
/// and "section content". Items are texts, dictionaries or a KeyValueCoding *. Main thread only.
class SKHelpManager
{
public:
    /// The array in the resource "<name>.plist"; nothing, and a log line, when it can't be read.
    [[nodiscard]] static std::optional<QVariantList> arrayFromPlist(const QString &name);
    /// The dictionary in the resource "<name>.plist"; nothing, and a log line, when it can't be read.
    [[nodiscard]] static std::optional<QVariantMap> dictionaryFromPlist(const QString &name);

    /// Sections by the first letter of the items' names, in order of the letters' code points; an item without a name
    /// is left out. The name is the text itself, otherwise the value for byNameKey. The items of a section are in order
    /// of their names, without regard to case as soon as one of all items is a text. Nothing when there is no section.
    [[nodiscard]] static std::optional<QVariantList> groupedItemsByFirstLetterInNameFromItems(const QVariantList &items,
                                                                                              const QString &byNameKey);

    /// Sections by the items' value for a key, in its order; an item without one is left out. The items of a section
    /// are in order of their values for "name", whatever the key. Nothing when there is no section.
    [[nodiscard]] static std::optional<QVariantList> groupedItems(const QVariantList &items, const QString &byKey);

    /// The path of a file in the user's documents folder.
    [[nodiscard]] static QString documentsDirectoryPathForFile(const QString &fileName);

    /// Today's date in the device's short style with points for slashes.
    [[nodiscard]] static QString curentShortStyleDate();

    /// The image stretched to a size in points. A null image, or an empty size, gives a null image.
    [[nodiscard]] static QImage scalledImageFromImage(const QImage &image, const QSizeF &scaledToSize,
                                                      qreal devicePixelRatio = 1);
    /// The same with 35 × 35 points.
    [[nodiscard]] static QImage standartScalledImageFromImage(const QImage &image, qreal devicePixelRatio = 1);
};

} // namespace kesto
