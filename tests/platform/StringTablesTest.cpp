#include "support/LogCapture.h"
#include "support/TestPlatform.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStringEncoder>

using namespace kesto;
using kesto::test::LogCapture;
using kesto::test::TestPlatform;

namespace
{

using Entries = QHash<QString, QString>;

class StringTablesTest : public testing::Test
{
protected:
    QTemporaryDir folder_;

    void put(const QString &code, const QByteArray &bytes) const
    {
        ASSERT_TRUE(QDir(folder_.path()).mkpath(code + u".lproj"_qs));
        QFile file(folder_.filePath(code + u".lproj/Localizable.strings"_qs));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    void SetUp() override
    {
        put(u"ru"_qs, "\"nameKey\" = \"nameRU\";\n\"Вес\" = \"Вес\";");
        put(u"en"_qs, "\"nameKey\" = \"nameENG\";\n\"Вес\" = \"Weight\";\n\"none\" = \"\";");
        put(u"zh-Hant"_qs, "\"nameKey\" = \"名\";");
    }
};

TEST_F(StringTablesTest, ReadsTheLanguageOfTheDeviceOrEnglish)
{
    const std::pair<QString, QString> cases[] = {
        {u"ru"_qs, u"ru"_qs},
        {u"ru_RU"_qs, u"ru"_qs},
        {u"ru-UA"_qs, u"ru"_qs},
        {u"ru_RU.UTF-8"_qs, u"ru"_qs},
        {u"en_GB"_qs, u"en"_qs},
        {u"de"_qs, u"en"_qs},
        {u"zh_Hant"_qs, u"zh-Hant"_qs},
        {u""_qs, u"en"_qs},
        {u"../x.lproj/ru"_qs, u"en"_qs},
        {u"C"_qs, u"en"_qs},
        {QString(), u"en"_qs},
    };
    for (const auto &[language, code] : cases)
        EXPECT_EQ(StringTables(folder_.path(), language).preferredLanguage(), code) << language.toStdString();
    const StringTables russian(folder_.path(), u"ru_RU"_qs);
    EXPECT_EQ(russian.localized(u"nameKey"_qs), u"nameRU"_qs);
    EXPECT_EQ(russian.localized(u"Нет такого"_qs), u"Нет такого"_qs);
    const StringTables english(folder_.path(), u"de"_qs);
    EXPECT_EQ(english.localized(u"Вес"_qs), u"Weight"_qs);
    EXPECT_EQ(english.localized(u"none"_qs), u""_qs); // there, and empty
}

TEST_F(StringTablesTest, ReadsTheLanguageChosenInTheApplication)
{
    StringTables tables(folder_.path(), u"ru"_qs);
    EXPECT_TRUE(tables.locolized(u"Вес"_qs).isNull());
    tables.setLangluageCode(u"en"_qs);
    EXPECT_EQ(tables.langluageCode(), u"en"_qs);
    EXPECT_EQ(tables.locolized(u"Вес"_qs), u"Weight"_qs);
    EXPECT_EQ(tables.locolized(u"Рост"_qs), u"Рост"_qs);
    EXPECT_EQ(tables.localized(u"Вес"_qs), u"Вес"_qs); // the device's is another matter
    for (const QString &code : {u"fr"_qs, u"../en"_qs, u""_qs, QString()}) {
        tables.setLangluageCode(code);
        EXPECT_TRUE(tables.locolized(u"Вес"_qs).isNull());
        EXPECT_FALSE(tables.table(code).has_value());
    }
    EXPECT_EQ(tables.table(u"en"_qs)->size(), 3);

    ASSERT_TRUE(QDir(folder_.path()).mkdir(u"fr.lproj"_qs));
    LogCapture capture;
    StringTables later(folder_.path(), u"ru"_qs);
    later.setLangluageCode(u"fr"_qs);
    EXPECT_EQ(later.locolized(u"Вес"_qs), u"Вес"_qs); // a folder without a table
    EXPECT_EQ(later.locolized(u"Рост"_qs), u"Рост"_qs);
    EXPECT_EQ(capture.lines().size(), 1);
}

TEST_F(StringTablesTest, TheFreeOperationsAskTheCurrentPlatform)
{
    TestPlatform test({.resourcesFolder = folder_.path(), .language = u"en"_qs});
    test.strings().setLangluageCode(u"ru"_qs);
    EXPECT_EQ(localized(u"nameKey"_qs), u"nameENG"_qs);
    EXPECT_EQ(locolized(u"nameKey"_qs), u"nameRU"_qs);
}

TEST_F(StringTablesTest, TakesOtherEncodingsByTheirMark)
{
    const QString text = u"\"Вес\" = \"Gewicht 😀\";"_qs;
    for (const auto encoding : {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
        put(u"de"_qs, encoder.encode(text));
        EXPECT_EQ(StringTables(folder_.path(), u"de"_qs).table(u"de"_qs), (Entries{{u"Вес"_qs, u"Gewicht 😀"_qs}}));
    }
    put(u"de"_qs, "\"a\" = \"\xff\";\n\"b\" = \"B\";");
    LogCapture capture;
    EXPECT_EQ(StringTables(folder_.path(), u"de"_qs).localized(u"b"_qs), u"B"_qs);
    EXPECT_EQ(capture.lines(), (QStringList{folder_.filePath(u"de.lproj/Localizable.strings:1: not valid UTF-8"_qs)}));
}

TEST(StringTablesParse, ReadsEntriesAndLogsSlips)
{
    struct Case
    {
        QString text;
        Entries entries;
        QStringList log;
    };
    const Entries both{{u"a"_qs, u"1"_qs}, {u"b"_qs, u"2"_qs}};
    const Entries second{{u"b"_qs, u"2"_qs}};
    const Case cases[] = {
        {u""_qs, {}, {}},
        {u"/* c */\n\"a\" = \"1\"; // \"x\" = \"y\";\r\n\"b\"=\"2\";"_qs, both, {}},
        {u"a = 1; b = /* two */ \"2\" ;"_qs, both, {}},
        {u"\"a;=\" = \"/* 1 */ // 2\";"_qs, {{u"a;="_qs, u"/* 1 */ // 2"_qs}}, {}},
        {uR"("q\"\\" = "\n\t\r\U0416\Ud83d\Ude00\'";)"_qs, {{u"q\"\\"_qs, u"\n\t\rЖ😀'"_qs}}, {}},
        {u"\"a\" = \"line 1\nline 2\";\"b\" = \"2\";"_qs, {{u"a"_qs, u"line 1\nline 2"_qs}, {u"b"_qs, u"2"_qs}}, {}},
        {u"\"%1 %2\" = \"%2 %1\";"_qs, {{u"%1 %2"_qs, u"%2 %1"_qs}}, {}},
        {u"\"a\" = \"1\"\n\"b\" = \"2\";"_qs, both, {u"t:1: ; is missing"_qs}},
        {u"\"a\" = \"1\";\n\"b\" = \"2\""_qs, both, {u"t:2: ; is missing"_qs}},
        {u"\"a\" = \"1\n1\"\n\"b\" = \"2\";"_qs,
         {{u"a"_qs, u"1\n1"_qs}, {u"b"_qs, u"2"_qs}},
         {u"t:2: ; is missing"_qs}},
        {u"\n\"a\" \"1\";\n\"b\" = \"2\";"_qs, second, {u"t:2: = is missing"_qs}},
        {u"\"a\" = ;\n\"b\" = \"2\";"_qs, second, {u"t:1: \" is missing before ;"_qs}},
        {u"\"a\" =\n\n"_qs, {}, {u"t:1: the text ends within an entry"_qs}},
        {u"\"a\" = \"1;\n\"b\" = \"2\";"_qs, second, {u"t:2: ; is missing"_qs}}, // no quotation mark after the 1
        {u"\"a = \"1\";\n\"b\" = \"2\";"_qs, second, {u"t:1: = is missing"_qs}}, // nor after the a
        {u"\"b\" = \"2\";\n\"a\" = \"1;\n"_qs, second, {u"t:2: a text without an end"_qs}},
        {u"\"b\" = \"2\";\n/* \"a\" = \"1\";"_qs, second, {u"t:2: a comment without an end"_qs}},
        {u"\"b\" = \"1\";\n\"b\" = \"2\";"_qs, second, {u"t:2: the key \"b\" is there twice"_qs}},
        {u"\"b\" = \"2\";\n\"a\" = \"\\q\\U12g4\";"_qs,
         {{u"b"_qs, u"2"_qs}, {u"a"_qs, u"\\q\\U12g4"_qs}},
         {u"t:2: an unknown escape: \\q"_qs, u"t:2: an unknown escape: \\U"_qs}},
        {u"?\n\"b\" = \"2\";"_qs, second, {u"t:1: \" is missing before ?"_qs}},
        {u"\"a\\"_qs, {}, {u"t:1: a text without an end"_qs}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.text.toStdString());
        const LogCapture capture;
        EXPECT_EQ(StringTables::parse(c.text, u"t"_qs), c.entries);
        // The last one has an escape without a character before its end is missed.
        if (c.text.endsWith(u'\\'))
            EXPECT_EQ(capture.lines().constLast(), c.log.constLast());
        else
            EXPECT_EQ(capture.lines(), c.log);
    }
}

} // namespace
