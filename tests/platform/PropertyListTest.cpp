#include "platform/PropertyList.h"
#include "support/ResourceLimit.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTimeZone>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

using namespace kesto;
using kesto::test::ResourceLimit;

namespace
{

const QDateTime moment(QDate(2024, 2, 29), QTime(23, 59, 58), Qt::UTC);

QVariantMap sample()
{
    return {{u"text"_qs, u"Ёжики & <b>\"суп\"</b>\r\n\t😀 — "_qs},
            {u"blank"_qs, u"  \n "_qs},
            {u"empty"_qs, u""_qs},
            {u""_qs, u"a key without letters"_qs},
            {u"Окружность запястья"_qs, qint64(2)},
            {u"most"_qs, std::numeric_limits<qint64>::max()},
            {u"least"_qs, std::numeric_limits<qint64>::min()},
            {u"zero"_qs, qint64(0)},
            {u"no"_qs, false},
            {u"yes"_qs, true},
            {u"tenth"_qs, 0.1},
            {u"whole real"_qs, 60.0},
            {u"tiny"_qs, 5e-324},
            {u"infinite"_qs, -std::numeric_limits<double>::infinity()},
            {u"date"_qs, moment},
            {u"old"_qs, QDateTime(QDate(33, 4, 3), QTime(15, 0), Qt::UTC)},
            {u"data"_qs, QByteArray("\0\xff\x80 x", 5)},
            {u"no data"_qs, QByteArray("")},
            {u"list"_qs, QVariantList{u"a"_qs, qint64(1), QVariantList(), QVariantMap{{u"k"_qs, QVariantMap()}}}}};
}

// Equal with the types, which QVariant's comparison leaves aside for numbers.
void expectSame(const QVariant &left, const QVariant &right)
{
    ASSERT_EQ(left.typeId(), right.typeId()) << left.typeName() << ' ' << right.typeName();
    EXPECT_EQ(left, right);
    if (left.typeId() == QMetaType::QVariantMap) {
        const QVariantMap map = left.toMap();
        for (auto entry = map.begin(); entry != map.end(); ++entry)
            expectSame(entry.value(), right.toMap().value(entry.key()));
    } else if (left.typeId() == QMetaType::QVariantList) {
        for (qsizetype i = 0; i < left.toList().size(); ++i)
            expectSame(left.toList()[i], right.toList().value(i));
    }
}

QByteArray plist(const QByteArray &content) { return "<plist version=\"1.0\">" + content + "</plist>"; }

TEST(PropertyList, KeepsEveryValueAndType)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"s p а.plist"_qs);
    ASSERT_TRUE(PropertyList::write(sample(), path));
    const Result<QVariant> back = PropertyList::read(path);
    ASSERT_TRUE(back.has_value());
    expectSame(*back, sample());

    // What else is taken comes back in a list's own types.
    const QVariantList given{1,
                             2u,
                             short(-3),
                             quint64(4),
                             72.3f,
                             60.0f,
                             QStringList{u"a"_qs},
                             QString(),
                             moment.addMSecs(999),
                             moment.toTimeZone(QTimeZone("Asia/Kolkata")),
                             std::numeric_limits<float>::max()};
    const QVariantList expected{qint64(1), qint64(2), qint64(-3), qint64(4),    72.3, 60.0, QVariantList{u"a"_qs},
                                u""_qs,    moment,    moment,     3.4028235e+38};
    expectSame(*PropertyList::parse(*PropertyList::serialize(given), u"x"_qs), expected);
    EXPECT_TRUE(std::isnan(PropertyList::parse(*PropertyList::serialize(std::nan("")), u"x"_qs)->toDouble()));
}

TEST(PropertyList, ReplacesCharactersThatXmlHasNoFormFor)
{
    const QString bad = u"a\0b\x01"_qs + QChar(0xd83d) + u"c\uffff"_qs + QChar(0xde00);
    const QString mended = u"a\ufffdb\ufffd\ufffdc\ufffd\ufffd"_qs;
    EXPECT_EQ(*PropertyList::parse(*PropertyList::serialize(QVariantMap{{bad, bad}}), u"x"_qs),
              QVariant(QVariantMap{{mended, mended}}));
}

TEST(PropertyList, ReadsWhatOtherProgramsWrite)
{
    const std::pair<QByteArray, QVariant> cases[] = {
        {"\xef\xbb\xbf<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<!-- <dict> --><plist>\r\n<true/>\r\n</plist>\r\n",
         true},
        {plist("<string>a<!-- b -->c<![CDATA[<d>&amp;]]>\r\ne &#x416;&#38;&lt;</string>"), u"ac<d>&amp;\ne Ж&<"_qs},
        {plist("<string/>"), u""_qs},
        {plist("<string><![CDATA[]]></string>"), u""_qs},
        {plist("<integer> +7 </integer>"), qint64(7)},
        {plist("<real>1e3</real>"), 1000.0},
        {plist("<real>+infinity</real>"), std::numeric_limits<double>::infinity()},
        {plist("<real>3</real>"), 3.0},
        {plist("<data>\n\tAP+A\n\tIHg=\n</data>"), QByteArray("\0\xff\x80 x", 5)},
        {plist("<date> 2024-02-29T23:59:58Z </date>"), moment},
        {plist("<array> <!-- none --> </array>"), QVariantList()},
        {plist("<dict><key>a</key><true/><key>a</key><false/></dict>"), QVariantMap{{u"a"_qs, false}}},
        {plist("<dict><!-- c --><key>a<!-- c -->b</key><!-- c --><string> </string></dict>"),
         QVariantMap{{u"ab"_qs, u" "_qs}}},
        {"<?xml version='1.0'?>\n<!DOCTYPE plist SYSTEM 'a>b\"c'>\n<?go on?><plist\n version = \"1>&#48;\" >"
         "<array ><true /><false></false\n><string a='&lt;'/></array ></plist\n><!-- end --><?go?>\n",
         QVariantList{true, false, u""_qs}},
        {plist("<array><!----><?a?><string>1</string><!-- <true/> - ] > --><string>2</string><?a <?></array>"),
         QVariantList{u"1"_qs, u"2"_qs}},
        {plist("<string><![CDATA[<a>&lt;]]]]><![CDATA[>\r\r\n]]>&quot;<!-- & -->&apos;<?b &?>&gt;\rz</string>"),
         u"<a>&lt;]]>\n\n\"'>\nz"_qs},
        {plist("<string>&#x1F600;&#128512;&#xffff;&#0065;&#xD7FF;</string>"), u"😀😀\uffffA\ud7ff"_qs},
        {plist("<array><integer>&#49;<!-- -->2</integer><real><![CDATA[ 1.5 ]]></real><data>QQ&#61;=</data></array>"),
         QVariantList{qint64(12), 1.5, QByteArray("A")}},
        {plist("<dict><key>&#1071;&amp;</key><true/><key>Я&amp;</key><false/><key/><true/></dict>"),
         QVariantMap{{u"Я&"_qs, false}, {u""_qs, true}}},
    };
    for (const auto &[bytes, expected] : cases) {
        SCOPED_TRACE(bytes.toStdString());
        const Result<QVariant> value = PropertyList::parse(bytes, u"x"_qs);
        ASSERT_TRUE(value.has_value());
        expectSame(*value, expected);
    }
}

TEST(PropertyList, RefusesWrongInputWithItsLine)
{
    struct Case
    {
        QByteArray bytes;
        const char *line; // the log's, or how it begins
    };
    const Case cases[] = {
        {"", "x:1: empty"},
        {"bplist00\xd0\x08", "x:1: a binary property list"},
        {" \n ", "x:1: the root element is not plist"},
        {"text", "x:1: text where a value should be: text"},
        {"<plist>\n<array>\n", "x:"},
        {"<plist>\n<string>a</strin></plist>", "x:2: Start-end tags mismatch"},
        {"\n<html/>", "x:2: the root element is not plist"},
        {"<array/>", "x:1: the root element is not plist"},
        {"<plist/>\n<plist/>", "x:1: plist without a value"},
        {"<plist>\n</plist>", "x:1: plist without a value"},
        {"<plist><true/>\n<true/></plist>", "x:2: plist with more than one value"},
        {"<plist>text</plist>", "x:1: text where a value should be: text"},
        {plist("\n<array>\n<foo/></array>"), "x:3: foo is no element of a property list"},
        {plist("<array><true/>\ntext</array>"), "x:1: text where a value should be: text"},
        {plist("<array><key>a</key></array>"), "x:1: a key outside a dictionary"},
        {plist("\n<dict>\n<true/></dict>"), "x:3: a value without a key"},
        {plist("<dict><key>a</key><true/>\n<false/></dict>"), "x:2: a value without a key"},
        {plist("<dict>\n<key>Вес</key></dict>"), "x:2: the key Вес has no value"},
        {plist("<dict><key>a</key><key>b</key><true/></dict>"), "x:1: the key a has no value"},
        {plist("<string>a<b/></string>"), "x:1: an element inside string"},
        {plist("<true>1</true>"), "x:1: true with content"},
        {plist("<integer>9223372036854775808</integer>"), "x:1: not a whole number of 64 bits: 9223372036854775808"},
        {plist("<integer>1.5</integer>"), "x:1: not a whole number of 64 bits: 1.5"},
        {plist("<integer>+-1</integer>"), "x:1: not a whole number"},
        {plist("<integer>1 2</integer>"), "x:1: not a whole number"},
        {plist("<integer/>"), "x:1: not a whole number"},
        {plist("<real>1,5</real>"), "x:1: not a number: 1,5"},
        {plist("<real>1e999</real>"), "x:1: not a number: 1e999"},
        {plist("<real></real>"), "x:1: not a number: "},
        {plist("<date>2023-02-29T00:00:00Z</date>"), "x:1: not a date: 2023-02-29T00:00:00Z"},
        {plist("<date>2023-02-28T24:00:00Z</date>"), "x:1: not a date"},
        {plist("<date>2023-02-28</date>"), "x:1: not a date"},
        {plist("<date>2023-02-28T00:00:00+01:00</date>"), "x:1: not a date"},
        {plist("<data>AP+</data>"), "x:1: not base64"},
        {plist("<data>A?==</data>"), "x:1: not base64"},
        {plist("\n<string>\xff\xfe</string>"), "x:2: not UTF-8 text"},
        {plist("<string>\xc0\xaf</string>"), "x:1: not UTF-8 text"},
        {plist("<string>\xed\xa0\x80</string>"), "x:1: not UTF-8 text"},
        {plist("<!-- \xd0 --><true/>"), "x:1: not UTF-8 text"},
        {plist("\n<string>").append('\0').append("</string>"), "x:2: not UTF-8 text"},
        {plist("\n<string>a&#0;b</string>"), "x:2: a reference to no character"},
        {plist("<string>&#xD83D;</string>"), "x:1: a reference to no character"},
        {plist("<string>&#99999999999;</string>"), "x:1: a reference to no character"},
        {plist("<string>a & b</string>"), "x:1: a reference to no character"},
        {plist("<string>&#65</string>"), "x:1: a reference to no character"},
        {plist("<string>&#x110000;</string>"), "x:1: a reference to no character"},
        {plist("<string>&#x1g;</string>"), "x:1: a reference to no character"},
        {"<!DOCTYPE plist [\n<!ENTITY a \"b\">]><plist><string>&a;</string></plist>",
         "x:1: a document type with declarations"},
        {plist("<string>&a;</string>"), "x:1: a reference to no character in: &a;"},
        {plist("<string>&#+65;</string>"), "x:1: a reference to no character"},
        {"<plist>\n<!DOCTYPE plist><true/></plist>", "x:2: Error parsing document type declaration"},
        {plist("\n\n<true/>") + "\n<plist/>", "x:4: a second root element"},
        {plist("<true/>") + "\nmore", "x:1: text where a value should be"},
        {"a" + plist("<true/>"), "x:1: text where a value should be"},
        {plist("<array>\n<![CDATA[]]></array>"), "x:2: text where a value should be"},
        {plist("<dict><key>a</key>\nb<true/></dict>"), "x:1: text where a value should be: b"},
        {plist("<array>\n<true>"), "x:2: Start-end tags mismatch"},
        {"<plist>\n<true/>\n</plists>", "x:3: Start-end tags mismatch"},
        {"<plist>\n</plis>", "x:2: Start-end tags mismatch"},
        {"</plist>", "x:1: Start-end tags mismatch"},
        {plist("<>"), "x:1: Could not determine tag type"},
        {plist("<true/ >"), "x:1: Error parsing start element tag"},
        {plist("\n<true a=b/>"), "x:2: Error parsing element attribute"},
        {plist("<true a='1'b='2'/>"), "x:1: Error parsing element attribute"},
        {plist("<!true/>"), "x:1: Could not determine tag type"},
        {plist("<true/>\n<!-- "), "x:2: Error parsing comment"},
        {plist("<string>\n<![CDATA[ ]]"), "x:2: Error parsing CDATA section"},
        {QByteArray("\xff\xfe<\0p\0l\0", 8), "x:1: not UTF-8 text"},
        {QByteArray("\0<\0p\0l", 6), "x:1: not UTF-8 text"},
        {plist("<string>a<b/></string>\n<!-- \xc3\x28 -->"), "x:2: not UTF-8 text"},
        {plist("\n<dict><key>\xd0</key><true/></dict>"), "x:2: not UTF-8 text"},
        {plist("\n<string a='\xf5'/>"), "x:2: not UTF-8 text"},
        {plist("\n<string \xf5='a'/>"), "x:2: not UTF-8 text"},
        {plist("\n<string><![CDATA[\xe0\x80\x80]]></string>"), "x:2: not UTF-8 text"},
        {plist(QByteArray("<array>").repeated(100'000) + QByteArray("</array>").repeated(100'000)),
         "x:1: values nested deeper than 256"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.bytes.left(200).toStdString());
        const Result<QVariant> value = PropertyList::parse(c.bytes, u"x"_qs);
        ASSERT_FALSE(value.has_value());
        const QString line = value.error().where + u": "_qs + value.error().reason;
        EXPECT_TRUE(line.startsWith(QString::fromUtf8(c.line))) << line.toStdString();
    }
}

TEST(PropertyList, RefusesTruncationAtEveryByte)
{
    QByteArray whole = *PropertyList::serialize(sample());
    whole.replace("<true/>", "<!-- a --><true a='&lt;' />\r\n<?b c?>");
    whole.replace("</string>", "&#x416;<![CDATA[<d> &]]></string >");
    ASSERT_TRUE(PropertyList::parse(whole, u"x"_qs).has_value());
    const qsizetype end = whole.lastIndexOf('>');
    for (qsizetype length = 0; length <= end; ++length) {
        // A copy of its own, so that a sanitizer notices a look beyond the end.
        const std::vector<char> part(whole.begin(), whole.begin() + length);
        ASSERT_FALSE(PropertyList::parse(QByteArray::fromRawData(part.data(), length), u"x"_qs).has_value()) << length;
    }
}

TEST(PropertyList, SurvivesDamageAtEveryByte)
{
    QByteArray whole = *PropertyList::serialize(sample());
    whole.replace("<true/>", "<!-- a --><true a='&lt;' /><?b c?>");
    whole.replace("</string>", "&#x416;<![CDATA[<d> &]]></string >");
    std::mt19937 random(7); // NOLINT: the same on every run
    // Damage within may be text; reading it gives a value or a line.
    for (qsizetype at = 0; at < whole.size(); ++at) {
        QByteArray bytes("<>/&'!\0\r\x80\xd0\xff", 11);
        bytes.append(static_cast<char>(random())).append(static_cast<char>(random()));
        for (const char byte : bytes) {
            QByteArray damaged = whole;
            damaged[at] = byte;
            const bool parsed = PropertyList::parse(damaged, u"x"_qs).has_value();
            ASSERT_FALSE(parsed && (byte == '\0' || byte == '\xff')) << at;
        }
    }
}

TEST(PropertyList, RefusesToWriteWhatAListCannotHold)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.plist"_qs);
    ASSERT_TRUE(PropertyList::write(u"old"_qs, path));
    QVariant deep = 1;
    for (int i = 0; i < 300; ++i)
        deep = QVariantList{deep};
    for (const QVariant &bad :
         {QVariant(), QVariant(QDate(2024, 1, 1)), QVariant(std::numeric_limits<quint64>::max()), QVariant(QDateTime()),
          QVariant(QDateTime(QDate(10000, 1, 1), QTime(0, 0), Qt::UTC)), deep, QVariant::fromValue<void *>(nullptr)}) {
        EXPECT_FALSE(PropertyList::write(QVariantMap{{u"a"_qs, QVariantList{bad}}}, path));
    }
    EXPECT_EQ(PropertyList::read(path), QVariant(u"old"_qs));
}

TEST(PropertyList, SetsOnlyDamagedContentAside)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.plist"_qs);
    EXPECT_EQ(PropertyList::readOrSetAside(path), QVariantMap());
    ASSERT_TRUE(PropertyList::write(QVariantMap{{u"a"_qs, true}}, path));
    {
        const ResourceLimit noDescriptors(RLIMIT_NOFILE, 0);
        EXPECT_FALSE(PropertyList::readOrSetAside(path));
    }
    EXPECT_EQ(PropertyList::readOrSetAside(path), (QVariantMap{{u"a"_qs, true}}));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"a.plist"_qs});
}

} // namespace
