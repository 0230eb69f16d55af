#include "util/SKHelpManager.h"
#include "platform/KeyValueCoding.h"
#include "support/LogCapture.h"
#include "support/TestPlatform.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLocale>

using namespace kesto;
using kesto::test::LogCapture;
using kesto::test::TestPlatform;

namespace
{

class Item : public KeyValueCoding
{
public:
    explicit Item(QVariantMap values)
        : values_(std::move(values))
    {
    }
    [[nodiscard]] QVariant valueForKey(const QString &key) const override { return values_.value(key); }

private:
    QVariantMap values_;
};

// "А: Арбуз, Айва; Ё: Ёжики"
QString outline(const std::optional<QVariantList> &sections, const QString &nameKey)
{
    if (!sections)
        return {};
    QStringList lines;
    for (const QVariant &section : *sections) {
        QStringList names;
        for (const QVariant &item : section.toMap().value(u"section content"_qs).toList()) {
            if (item.typeId() == QMetaType::QString)
                names.append(item.toString());
            else if (const auto *object = item.value<KeyValueCoding *>())
                names.append(object->valueForKey(nameKey).toString());
            else
                names.append(item.toMap().value(nameKey).toString());
        }
        lines.append(section.toMap().value(u"section name"_qs).toString() + u": "_qs + names.join(u", "_qs));
    }
    return lines.join(u"; "_qs);
}

QVariantList named(const QStringList &names)
{
    QVariantList items;
    for (const QString &name : names)
        items.append(QVariantMap{{u"nameRU"_qs, name}});
    return items;
}

QString byLetter(const QVariantList &items)
{
    const QString key = u"nameRU"_qs;
    return outline(SKHelpManager::groupedItemsByFirstLetterInNameFromItems(items, key), key);
}

TEST(SKHelpManager, GroupsByFirstLetter)
{
    EXPECT_EQ(byLetter({u"banana"_qs, u"Avocado"_qs, u"apple"_qs}), u"A: apple, Avocado; B: banana"_qs);
    // Objects sort with regard to case, texts without; one text makes the difference for all.
    EXPECT_EQ(byLetter(named({u"apple"_qs, u"Avocado"_qs, u"aZ"_qs})), u"A: Avocado, aZ, apple"_qs);
    EXPECT_EQ(byLetter(named({u"apple"_qs, u"Avocado"_qs, u"aZ"_qs}) + QVariantList{u"Ab"_qs}),
              u"A: Ab, apple, Avocado, aZ"_qs);
    EXPECT_EQ(byLetter(named({u"Арбуз"_qs, u"Ёжики"_qs, u"яйцо"_qs, u"2 яйца"_qs, u"Zest"_qs, u"ёрш"_qs, u"айва"_qs})),
              u"2: 2 яйца; Z: Zest; Ё: Ёжики, ёрш; А: Арбуз, айва; Я: яйцо"_qs);
    EXPECT_EQ(byLetter(named({u"😀"_qs, u"\uffe6"_qs})), u"\uffe6: \uffe6; 😀: 😀"_qs);
    EXPECT_EQ(byLetter(named({u""_qs, u"Б"_qs, QString()}) + QVariantList{QVariantMap(), QVariant(), u""_qs}),
              u"Б: Б"_qs);
    const auto none = SKHelpManager::groupedItemsByFirstLetterInNameFromItems(named({u""_qs}), u"nameRU"_qs);
    EXPECT_FALSE(none.has_value());
    EXPECT_FALSE(SKHelpManager::groupedItemsByFirstLetterInNameFromItems({}, u"nameRU"_qs).has_value());
}

TEST(SKHelpManager, GroupsByAKeyAndSortsByName)
{
    const auto product = [](QStringView category, const QVariant &name) {
        return QVariantMap{{u"catRU"_qs, category.toString()}, {u"name"_qs, name}};
    };
    const QVariantList items{product(u"Рыба", u"щука"_qs),   product(u"Мясо", u"телятина"_qs),
                             product(u"Рыба", u"Лосось"_qs), product(u"", u"ничья"_qs),
                             product(u"Рыба", QVariant()),   QVariantMap{{u"name"_qs, u"x"_qs}}};
    EXPECT_EQ(outline(SKHelpManager::groupedItems(items, u"catRU"_qs), u"name"_qs),
              u"Мясо: телятина; Рыба: , Лосось, щука"_qs);
    EXPECT_FALSE(SKHelpManager::groupedItems(items, u"catENG"_qs).has_value());
    EXPECT_FALSE(SKHelpManager::groupedItems({u"text"_qs}, u"catRU"_qs).has_value());

    const auto numbered = [](int group, QStringView name) {
        return QVariantMap{{u"phase"_qs, group}, {u"name"_qs, name.toString()}};
    };
    const auto byNumber = SKHelpManager::groupedItems(
        {numbered(10, u"b"), numbered(9, u"c"), numbered(0, u"d"), numbered(10, u"a")}, u"phase"_qs);
    EXPECT_EQ(outline(byNumber, u"name"_qs), u"0: d; 9: c; 10: a, b"_qs);
    EXPECT_EQ(byNumber->first().toMap().value(u"section name"_qs), QVariant(0));
}

TEST(SKHelpManager, GroupsObjectsByTheirValues)
{
    Item hedgehogs({{u"nameRU"_qs, u"Ёжики"_qs}, {u"catRU"_qs, u"Мясо"_qs}, {u"name"_qs, u"2"_qs}});
    Item melon({{u"nameRU"_qs, u"Арбуз"_qs}, {u"catRU"_qs, u"Мясо"_qs}, {u"name"_qs, u"1"_qs}});
    const QVariantList items{QVariant::fromValue<KeyValueCoding *>(&melon),
                             QVariant::fromValue<KeyValueCoding *>(&hedgehogs)};
    EXPECT_EQ(byLetter(items), u"Ё: Ёжики; А: Арбуз"_qs);
    EXPECT_EQ(outline(SKHelpManager::groupedItems(items, u"catRU"_qs), u"nameRU"_qs), u"Мясо: Арбуз, Ёжики"_qs);
}

TEST(SKHelpManager, ReadsResourcesAndSaysWhichIsMissing)
{
    const QTemporaryDir resources;
    const TestPlatform test({.resourcesFolder = resources.path()});
    const auto put = [&](const char *name, const QByteArray &content) {
        QFile file(resources.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    };
    put("tips.plist", "<plist><array><string>Пейте воду</string></array></plist>");
    put("water.plist", "<plist><dict><key>1</key><integer>200</integer></dict></plist>");
    put("broken.plist", "<plist><array>");

    LogCapture capture;
    EXPECT_EQ(SKHelpManager::arrayFromPlist(u"tips"_qs), (QVariantList{u"Пейте воду"_qs}));
    EXPECT_EQ(SKHelpManager::dictionaryFromPlist(u"water"_qs), (QVariantMap{{u"1"_qs, qint64(200)}}));
    EXPECT_EQ(capture.take(), QStringList());

    const QString array = u"SKHelpManager error for array - no local plist file for fileName - |%1|"_qs;
    const QString dictionary = u"SKHelpManager error for dictionary - no local plist file for fileName - |%1|"_qs;
    EXPECT_FALSE(SKHelpManager::arrayFromPlist(u"нет"_qs).has_value());
    EXPECT_FALSE(SKHelpManager::dictionaryFromPlist(u"нет"_qs).has_value());
    EXPECT_FALSE(SKHelpManager::arrayFromPlist(u"water"_qs).has_value());
    EXPECT_FALSE(SKHelpManager::dictionaryFromPlist(u"tips"_qs).has_value());
    EXPECT_EQ(capture.take(), (QStringList{array.arg(u"нет"_qs), dictionary.arg(u"нет"_qs), array.arg(u"water"_qs),
                                           dictionary.arg(u"tips"_qs)}));
    EXPECT_FALSE(SKHelpManager::arrayFromPlist(u"broken"_qs).has_value());
    EXPECT_EQ(capture.lines().value(1), array.arg(u"broken"_qs)); // after the reason
}

TEST(SKHelpManager, KnowsTheDocumentsFolderAndTheDate)
{
    TestPlatform test;
    EXPECT_EQ(SKHelpManager::documentsDirectoryPathForFile(u"Diet.sqlite"_qs),
              test.documentsFolder() + u"/Diet.sqlite"_qs);
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(SKHelpManager::curentShortStyleDate(), u"3.7.24"_qs);
    test.clock().set(test.date(2024, 12, 31, 23, 59, 59).addSecs(1)); // still the 31st in UTC
    EXPECT_EQ(SKHelpManager::curentShortStyleDate(), u"1.1.25"_qs);
    QLocale::setDefault(QLocale(QLocale::Russian, QLocale::Russia));
    EXPECT_EQ(SKHelpManager::curentShortStyleDate(), u"01.01.2025"_qs);
    QLocale::setDefault(before);
}

TEST(SKHelpManager, StretchesImages)
{
    QImage image(10, 40, QImage::Format_ARGB32);
    image.fill(Qt::red);
    const QImage scaled = SKHelpManager::scalledImageFromImage(image, QSizeF(20, 5), 2);
    EXPECT_EQ(scaled.size(), QSize(40, 10));
    EXPECT_EQ(scaled.deviceIndependentSize(), QSizeF(20, 5));
    EXPECT_EQ(scaled.pixelColor(39, 9), QColor(Qt::red));
    EXPECT_EQ(SKHelpManager::standartScalledImageFromImage(image).size(), QSize(35, 35));
    EXPECT_TRUE(SKHelpManager::scalledImageFromImage(QImage(), QSizeF(20, 5)).isNull());
    EXPECT_TRUE(SKHelpManager::scalledImageFromImage(image, QSizeF(0, 5)).isNull());
}

} // namespace
