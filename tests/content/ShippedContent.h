#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace kesto::test
{

enum Language { Russian, English };

inline constexpr std::array<Language, 2> kLanguages{Russian, English};
inline const std::array<QString, 2> kLanguageCodes{QStringLiteral("ru"), QStringLiteral("en")};

/// A product of the reference list.
struct Product
{
    std::array<QString, 2> names;
    int kind = -1;
    QStringList phases; ///< "0" to "3"
};

/// A dish of the catalogue, as it is in the property list.
struct ShippedDish
{
    QString dishID;
    QString dietPeriod;
    std::array<QString, 2> names;
    std::array<QString, 2> recipes;
    std::array<QString, 2> categories;
    std::array<QStringList, 2> lines;
};

/// What stands behind the name in an ingredient line.
struct Amount
{
    bool toTaste = false;
    QString number; ///< with a decimal point
    QString unit;   ///< the unit as written
};

/// What ships with the program, read anew from the laid-out resources; the vocabulary of free things and units from
/// the catalogue's sources.
class ShippedContent
{
public:
    static const ShippedContent &get();

    [[nodiscard]] const QList<ShippedDish> &dishes() const { return dishes_; }
    [[nodiscard]] const QList<Product> &products() const { return products_; }

    /// Where a name stands in the vocabulary: its position in the reference list, a negative number for a free thing;
    /// 0x7fffffff when the language doesn't know it.
    [[nodiscard]] int position(Language language, const QString &name) const;
    static constexpr int kUnknown = 0x7fffffff;

    /// The unit's key for a number and a text, null when the unit is unknown or its form does not go with the number.
    [[nodiscard]] QString unitKey(Language language, const QString &number, const QString &unit) const;

    /// The folder of the resources as they are installed.
    [[nodiscard]] static QString folder();
    /// "<code>.lproj" in it.
    [[nodiscard]] static QString folderOf(Language language);
    /// The text of a file; null, and a failure of the test, when it can't be read as UTF-8.
    [[nodiscard]] static QString textOf(const QString &path);

private:
    ShippedContent();
    void readProducts();
    void readDishes();
    void readVocabulary();

    struct Unit
    {
        QString key;
        std::array<QStringList, 2> forms; ///< one, few, many; one, many
    };

    QList<ShippedDish> dishes_;
    QList<Product> products_;
    QList<Unit> units_;
    std::array<QHash<QString, int>, 2> positions_;
};

/// "Name - 1,5 ст. л." and its like, taken apart.
struct Line
{
    QString name;
    Amount amount;
};
/// Nothing when the line is not written that way.
[[nodiscard]] std::optional<Line> parseLine(Language language, const QString &line);

/// 0, 1 or 2: the form of a Russian noun behind a number; a fraction takes that of 2.
[[nodiscard]] int russianForm(const QString &number);

} // namespace kesto::test
