#include "content/ShippedContent.h"

#include "platform/PropertyList.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QStringDecoder>
#include <QVariantMap>

namespace kesto::test
{

namespace
{

QVariantList arrayOf(const QString &name)
{
    const Result<QVariant> content =
        PropertyList::read(ShippedContent::folder() + u'/' + name + QStringLiteral(".plist"));
    EXPECT_TRUE(content && content->typeId() == QMetaType::QVariantList) << name.toStdString();
    return content ? content->toList() : QVariantList();
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
            const QString phases = entry.value(QStringLiteral("Периоды")).toString().remove(u',');
            EXPECT_EQ(entry.size(), 3) << name.toStdString();
            EXPECT_TRUE(kind.typeId() == QMetaType::LongLong) << name.toStdString();
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

} // namespace kesto::test
