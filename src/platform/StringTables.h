#pragma once

#include <QHash>
#include <QMutex>
#include <QString>

#include <optional>

namespace kesto
{

/// The texts of the interface: one folder "<code>.lproj" with a "Localizable.strings" a language, in UTF-8 or with a
/// byte order mark. Any thread.
class StringTables
{
public:
    /// resourcesFolder holds the folders; preferredLanguage is the language of the device or the one the user chose for
    /// this program ("ru", "en", "ru_RU" …); a language without a folder counts as English.
    StringTables(QString resourcesFolder, const QString &preferredLanguage);

    /// The language code chosen inside the application, which locolized() reads; null until one was chosen.
    void setLangluageCode(const QString &code);
    [[nodiscard]] QString langluageCode() const;

    /// The code of the folder that localized() reads.
    [[nodiscard]] QString preferredLanguage() const;

    /// The text of a key in the preferred language; the key itself when the table has none.
    [[nodiscard]] QString localized(const QString &key) const;

    /// The text of a key in the language of langluageCode(): the key itself when the table has none, null when no code
    /// is set or its folder does not exist.
    [[nodiscard]] QString locolized(const QString &key) const;

    /// All entries of a language's table; nothing when there is no folder for it.
    [[nodiscard]] std::optional<QHash<QString, QString>> table(const QString &code) const;

    /// Entries of a table's text: "key" = "value"; with /* */ and // comments and the escapes \" \\ \n \t \r \Uxxxx.
    /// A slip in an entry is logged as "<source>:<line>: <reason>" and the rest is read on. Of two entries with one key
    /// the later holds, which counts as a slip.
    [[nodiscard]] static QHash<QString, QString> parse(const QString &text, const QString &source);

private:
    const std::optional<QHash<QString, QString>> &cachedTable(const QString &code) const; // mutex_ is held

    const QString resourcesFolder_;
    const QString preferredLanguage_;
    QString langluageCode_;
    mutable QMutex mutex_;
    mutable QHash<QString, std::optional<QHash<QString, QString>>> tables_;
};

/// StringTables::localized() of the current platform.
[[nodiscard]] QString localized(const QString &key);

/// StringTables::locolized() of the current platform.
[[nodiscard]] QString locolized(const QString &key);

} // namespace kesto
