#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <array>

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
    QString phases; ///< digits
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

/// What ships with the program, read anew from the laid-out resources. What the catalogue's tool promises of its lists
/// is tested with the tool.
class ShippedContent
{
public:
    static const ShippedContent &get();

    [[nodiscard]] const QList<ShippedDish> &dishes() const { return dishes_; }
    [[nodiscard]] const QList<Product> &products() const { return products_; }

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

    QList<ShippedDish> dishes_;
    QList<Product> products_;
};

} // namespace kesto::test
