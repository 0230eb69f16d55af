#include "content/ShippedContent.h"

#include "platform/PropertyList.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QVariantMap>

namespace kesto::test
{

namespace
{

QVariantList arrayOf(const QString &name)
{
    const std::optional<QVariant> content =
        PropertyList::read(ShippedContent::folder() + u'/' + name + QStringLiteral(".plist"));
    EXPECT_TRUE(content && content->typeId() == QMetaType::QVariantList) << name.toStdString();
    return content ? content->toList() : QVariantList();
}

QStringList rowsOf(const QString &file)
{
    const QString text = ShippedContent::textOf(QStringLiteral(KESTO_SOURCES "/resources/catalogue/") + file);
    QStringList rows = text.split(u'\n', Qt::SkipEmptyParts);
    rows.removeIf([](const QString &row) { return row.startsWith(u'#'); });
    return rows;
}

QStringList cellsOf(const QString &row)
{
    QStringList cells;
    for (const QString &cell : row.split(u'|'))
        cells.append(cell.trimmed());
    return cells;
}

} // namespace

const ShippedContent &ShippedContent::get()
{
    static const ShippedContent content;
    return content;
}

ShippedContent::ShippedContent()
{
    readProducts();
    readVocabulary();
    readDishes();
}

QString ShippedContent::folder() { return QStringLiteral(KESTO_SHARE); }

QString ShippedContent::folderOf(Language language)
{
    return folder() + u'/' + kLanguageCodes[language] + QStringLiteral(".lproj");
}

QString ShippedContent::textOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << path.toStdString() << " can't be read";
        return {};
    }
    QStringDecoder decoder(QStringConverter::Utf8);
    QString text = decoder.decode(file.readAll());
    EXPECT_FALSE(decoder.hasError()) << path.toStdString() << " is not valid UTF-8";
    return text;
}

void ShippedContent::readProducts()
{
    for (const Language language : kLanguages) {
        const QVariantList entries = arrayOf(QStringLiteral("ingredients_") + kLanguageCodes[language]);
        if (language == Russian)
            products_.resize(entries.size());
        ASSERT_EQ(entries.size(), products_.size()) << "the reference lists differ in length";
        for (qsizetype i = 0; i < entries.size(); ++i) {
            const QVariantMap entry = entries[i].toMap();
            const QString name = entry.value(QStringLiteral("name")).toString();
            const QVariant kind = entry.value(QStringLiteral("Дополнительное поле"));
            const QStringList phases = entry.value(QStringLiteral("Периоды")).toString().split(u',');
            EXPECT_EQ(entry.size(), 3) << name.toStdString();
            EXPECT_TRUE(kind.typeId() == QMetaType::LongLong) << name.toStdString();
            EXPECT_FALSE(positions_[language].contains(name)) << name.toStdString() << " stands twice";
            positions_[language].insert(name, static_cast<int>(i));
            Product &product = products_[i];
            product.names[language] = name;
            if (language == Russian) {
                product.kind = kind.toInt();
                product.phases = phases;
            } else {
                EXPECT_EQ(product.kind, kind.toInt()) << name.toStdString();
                EXPECT_EQ(product.phases, phases) << name.toStdString();
            }
        }
    }
}

void ShippedContent::readVocabulary()
{
    int position = -1;
    for (const QString &row : rowsOf(QStringLiteral("free.txt"))) {
        const QStringList cells = cellsOf(row);
        ASSERT_EQ(cells.size(), 3) << row.toStdString();
        for (const Language language : kLanguages) {
            const QString &name = cells[1 + language];
            EXPECT_FALSE(positions_[language].contains(name)) << name.toStdString() << " stands twice";
            positions_[language].insert(name, position);
        }
        --position;
    }
    for (const QString &row : rowsOf(QStringLiteral("units.txt"))) {
        const QStringList cells = cellsOf(row);
        ASSERT_EQ(cells.size(), 6) << row.toStdString();
        units_.append({cells[0], {cells.mid(1, 3), cells.mid(4, 2)}});
    }
}

void ShippedContent::readDishes()
{
    const QStringList suffixes{QStringLiteral("RU"), QStringLiteral("ENG")};
    for (const QVariant &element : arrayOf(QStringLiteral("recipes"))) {
        const QVariantMap record = element.toMap();
        ShippedDish dish;
        dish.dishID = record.value(QStringLiteral("dishID")).toString();
        dish.dietPeriod = record.value(QStringLiteral("dietPeriod")).toString();
        for (const Language language : kLanguages) {
            const QString &suffix = suffixes[language];
            dish.names[language] = record.value(QStringLiteral("name") + suffix).toString();
            dish.recipes[language] = record.value(QStringLiteral("recipe") + suffix).toString();
            dish.categories[language] = record.value(QStringLiteral("cat") + suffix).toString();
            dish.lines[language] = record.value(QStringLiteral("ingredients") + suffix).toStringList();
        }
        EXPECT_EQ(record.size(), 10) << dish.dishID.toStdString();
        dishes_.append(dish);
    }
}

int ShippedContent::position(Language language, const QString &name) const
{
    return positions_[language].value(name, kUnknown);
}

QString ShippedContent::unitKey(Language language, const QString &number, const QString &unit) const
{
    const int form = language == Russian ? russianForm(number) : (number == u'1' ? 0 : 1);
    for (const Unit &known : units_) {
        if (known.forms[language][form] == unit)
            return known.key;
    }
    return {};
}

std::optional<Line> parseLine(Language language, const QString &line)
{
    static const std::array<QRegularExpression, 2> forms{
        QRegularExpression(QStringLiteral("^(\\S.*?) - (?:(по вкусу)|(\\d+(?:,\\d+)?) (\\S.*))$")),
        QRegularExpression(QStringLiteral("^(\\S.*?) - (?:(to taste)|(\\d+(?:\\.\\d+)?) (\\S.*))$"))};
    const QRegularExpressionMatch match = forms[language].match(line);
    if (!match.hasMatch())
        return std::nullopt;
    return Line{match.captured(1),
                {!match.captured(2).isEmpty(), match.captured(3).replace(u',', u'.'), match.captured(4)}};
}

int russianForm(const QString &number)
{
    if (number.contains(u'.'))
        return 1;
    const int value = number.toInt();
    const int ones = value % 10;
    if (value % 100 >= 11 && value % 100 <= 14)
        return 2;
    return ones == 1 ? 0 : (ones >= 2 && ones <= 4 ? 1 : 2);
}

} // namespace kesto::test
