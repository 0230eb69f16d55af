#include "content/ShippedContent.h"
#include "content/SourceTexts.h"
#include "platform/StringTables.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace kesto;
using namespace kesto::test;
using testing::IsEmpty;

namespace
{

using Table = QHash<QString, QString>;

const std::array<Table, 2> &tables()
{
    static const std::array<Table, 2> read = [] {
        std::array<Table, 2> both;
        for (const Language language : kLanguages) {
            const LogCapture log;
            const QString path = ShippedContent::folderOf(language) + QStringLiteral("/Localizable.strings");
            both[language] = StringTables::parse(ShippedContent::textOf(path), path);
            EXPECT_THAT(log.lines(), IsEmpty());
        }
        return both;
    }();
    return read;
}

/// The keys of screens that are yet to be built.
QStringList keysToCome()
{
    const QString text = ShippedContent::textOf(QStringLiteral(KESTO_SOURCES "/tests/content/keys-to-come.txt"));
    QStringList keys;
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts)) {
        if (!line.startsWith(u'#'))
            keys.append(QString(line).replace(QStringLiteral("\\n"), QStringLiteral("\n")));
    }
    return keys;
}

/// "shedule_info_%d", "meat_%@", "water_%1" or, where a number is added, "water_" as a pattern of keys or file names.
QRegularExpression patternOf(const QString &text)
{
    static const QRegularExpression place(QStringLiteral("%(?:ld|lu|d|i|u|@|1)"));
    QString pattern;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : place.globalMatch(text)) {
        pattern += QRegularExpression::escape(text.mid(end, match.capturedStart() - end)) + QStringLiteral("\\d+");
        end = match.capturedEnd();
    }
    pattern += QRegularExpression::escape(text.mid(end));
    if (text.endsWith(u'_'))
        pattern += QStringLiteral("\\d+");
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

bool isPattern(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^[A-Za-z_]*_(%(ld|lu|d|i|u|@|1)(_[a-z]+)?)?$"));
    return text.size() > 2 && form.match(text).hasMatch();
}

/// The name of a picture without its file extension.
QString withoutExtension(QString text)
{
    static const QRegularExpression extension(QStringLiteral("\\.(png|svg|jpg)$"));
    return text.remove(extension);
}

QSet<QString> usedKeys()
{
    QSet<QString> used;
    const Table &known = tables()[Russian];
    for (const SourceText &literal : textsOfTheProgram()) {
        // Keys also stand in tables of rows, and some are the names of pictures.
        const QString text = withoutExtension(literal.text);
        if (known.contains(text))
            used.insert(text);
        if (isPattern(text)) {
            const QRegularExpression pattern = patternOf(text);
            for (auto entry = known.begin(); entry != known.end(); ++entry) {
                if (pattern.match(entry.key()).hasMatch())
                    used.insert(entry.key());
            }
        }
    }
    return used;
}

QString placeOf(const SourceText &literal)
{
    return literal.file + u':' + QString::number(literal.line) + QStringLiteral(": ") + literal.text;
}

/// One key a line, in the form of keys-to-come.txt.
std::string linesOf(const QSet<QString> &keys)
{
    QStringList lines(keys.begin(), keys.end());
    lines.replaceInStrings(QStringLiteral("\n"), QStringLiteral("\\n"));
    lines.sort();
    return '\n' + lines.join(u'\n').toStdString();
}

} // namespace

TEST(SourceTexts, AreFoundAsTheCompilerReadsThem)
{
    const QString code = QString::fromUtf8(R"code(#include "not/this.h"
// localized("nor this") 'don't
/* localized("nor "
   that) */
const char *plain = "Вода";
auto a = localized(QStringLiteral("one")) + u"two"_qs + tr("three");
auto b = localized(flag ? QStringLiteral("first") : other(QStringLiteral("second"), 1'000));
auto c = locolized(QStringLiteral("in "
                                  "parts"));
char d = '"'; auto e = "quote \" and \u041A\n"; auto f = R"(raw "text")";
)code");
    QStringList found;
    for (const SourceText &literal : textsIn(code, QStringLiteral("Some.cpp")))
        found.append(QString::number(literal.line) + (literal.localised ? u'!' : u' ') + literal.text);
    EXPECT_EQ(found, (QStringList{QStringLiteral("5 Вода"), QStringLiteral("6!one"), QStringLiteral("6 two"),
                                  QStringLiteral("6 three"), QStringLiteral("7!first"), QStringLiteral("7!second"),
                                  QStringLiteral("8!in parts"), QStringLiteral("10 quote \" and К\n"),
                                  QStringLiteral("10 raw \"text\"")}));

    const QList<SourceText> qml =
        textsIn(QStringLiteral("Text { text: 'it\\'s' + localized(\"key\") }"), QStringLiteral("A.qml"));
    ASSERT_EQ(qml.size(), 2);
    EXPECT_EQ(qml[0].text, QStringLiteral("it's"));
    EXPECT_TRUE(qml[1].localised && qml[1].text == u"key");
}

TEST(StringTables, HoldTheSameKeysInBothLanguages)
{
    const auto &[russian, english] = tables();
    const QSet<QString> russianKeys(russian.keyBegin(), russian.keyEnd());
    const QSet<QString> englishKeys(english.keyBegin(), english.keyEnd());
    EXPECT_GT(russianKeys.size(), 100);
    EXPECT_TRUE((russianKeys - englishKeys).isEmpty()) << linesOf(russianKeys - englishKeys);
    EXPECT_TRUE((englishKeys - russianKeys).isEmpty()) << linesOf(englishKeys - russianKeys);
}

TEST(StringTables, TextsAreFilledCleanAndInTheirLanguage)
{
    // Names of resources, codes and proper names are the same in both.
    static const QRegularExpression latin(QStringLiteral("[A-Za-z]{2,}"));
    static const QRegularExpression cyrillic(QStringLiteral("[\\x{400}-\\x{52f}]"));
    static const QRegularExpression properNames(
        QStringLiteral("iCloud|App Store|Facebook|nameRU|ingredientsRU|recipeRU|\\w*_ru|%ld|E-mail"));
    for (const Language language : kLanguages) {
        for (auto entry = tables()[language].begin(); entry != tables()[language].end(); ++entry) {
            SCOPED_TRACE((kLanguageCodes[language] + u' ' + entry.key()).toStdString());
            const QString &text = entry.value();
            EXPECT_FALSE(text.trimmed().isEmpty());
            EXPECT_EQ(text, text.trimmed());
            EXPECT_FALSE(text.contains(QStringLiteral("  ")));
            if (language == Russian) {
                EXPECT_FALSE(QString(text).remove(properNames).contains(latin)) << text.toStdString();
            } else if (entry.key() != u"Русский") {
                EXPECT_FALSE(text.contains(cyrillic)) << text.toStdString();
            }
        }
    }
}

TEST(StringTables, PlacesForValuesAgree)
{
    static const QRegularExpression place(QStringLiteral("%(?:\\d+\\$)?[-+ 0]*\\d*(?:\\.\\d+)?(?:l?[dufi]|@)"));
    const auto placesIn = [](const QString &text) {
        QStringList places;
        for (const QRegularExpressionMatch &match : place.globalMatch(text))
            places.append(match.captured());
        return places;
    };
    int withPlaces = 0;
    for (auto entry = tables()[Russian].begin(); entry != tables()[Russian].end(); ++entry) {
        const QStringList places = placesIn(entry.value());
        withPlaces += places.isEmpty() ? 0 : 1;
        EXPECT_EQ(places, placesIn(tables()[English].value(entry.key()))) << entry.key().toStdString();
        if (!placesIn(entry.key()).isEmpty()) {
            EXPECT_EQ(places, placesIn(entry.key())) << entry.key().toStdString();
        }
    }
    EXPECT_GT(withPlaces, 0);
}

TEST(StringTables, EveryKeyOfTheProgramHasItsText)
{
    // Russian texts of the program that are data, not keys.
    static const QSet<QString> data{QStringLiteral("Дополнительное поле"), QStringLiteral("Периоды")};
    static const QRegularExpression cyrillic(QStringLiteral("[\\x{400}-\\x{52f}]"));
    const Table &known = tables()[Russian];
    int localised = 0;
    for (const SourceText &literal : textsOfTheProgram()) {
        // Every Russian text is a key, wherever it stands.
        if (!literal.localised && (!literal.text.contains(cyrillic) || data.contains(literal.text)))
            continue;
        ++localised;
        bool found = known.contains(literal.text);
        if (!found && isPattern(literal.text)) {
            const QRegularExpression pattern = patternOf(literal.text);
            found = std::any_of(known.keyBegin(), known.keyEnd(),
                                [&](const QString &key) { return pattern.match(key).hasMatch(); });
        }
        EXPECT_TRUE(found) << placeOf(literal).toStdString() << " has no text";
    }
    EXPECT_GT(localised, 0);
}

TEST(StringTables, HoldNoKeyThatNothingUses)
{
    const QSet<QString> used = usedKeys();
    const QStringList list = keysToCome();
    const QSet<QString> toCome(list.begin(), list.end());
    EXPECT_EQ(toCome.size(), list.size()) << "a key stands twice in keys-to-come.txt";
    const QSet<QString> all(tables()[Russian].keyBegin(), tables()[Russian].keyEnd());
    const QSet<QString> orphans = all - used - toCome;
    EXPECT_TRUE(orphans.isEmpty()) << "nothing uses:" << linesOf(orphans);
    const QSet<QString> unknown = toCome - all;
    EXPECT_TRUE(unknown.isEmpty()) << "in keys-to-come.txt but in no table:" << linesOf(unknown);
}

TEST(Pictures, EveryNameHasItsFile)
{
    static const QRegularExpression extension(QStringLiteral("^[\\w%@-]+\\.(png|svg|jpg)$"));
    const QString folder = ShippedContent::folder() + QStringLiteral("/images/");
    const QStringList files = QDir(folder).entryList(QDir::Files);
    EXPECT_GT(files.size(), 100);
    const auto exists = [&](const QString &name) {
        return files.contains(withoutExtension(name) + QStringLiteral(".svg"));
    };

    // Names written with an extension, and the names in arguments and properties for pictures.
    for (const SourceText &literal : textsOfTheProgram()) {
        if (!extension.match(literal.text).hasMatch() || literal.text.startsWith(u'_'))
            continue; // or the end of a photo's name, and a dish need not have one
        const QString name = withoutExtension(literal.text);
        if (exists(name))
            continue;
        const QRegularExpression pattern = patternOf(name + QStringLiteral(".svg"));
        const bool any = name.contains(u'%') && std::any_of(files.begin(), files.end(), [&](const QString &file) {
                             return pattern.match(file).hasMatch();
                         });
        EXPECT_TRUE(any) << placeOf(literal).toStdString() << " has no file";
    }

    // The pictures that have a spoken name, the categories and the kinds of products.
    static const QRegularExpression numbered(QStringLiteral("^(meat|water)_\\d+$"));
    int spoken = 0;
    for (auto entry = tables()[Russian].begin(); entry != tables()[Russian].end(); ++entry) {
        if (numbered.match(entry.key()).hasMatch()) {
            ++spoken;
            EXPECT_TRUE(exists(entry.key())) << entry.key().toStdString();
        }
    }
    EXPECT_GT(spoken, 40);
    for (int category = 0; category < 9; ++category)
        EXPECT_TRUE(exists(QStringLiteral("%1_recipes_icon").arg(category)));
    for (int kind = 0; kind < 4; ++kind)
        EXPECT_TRUE(exists(QStringLiteral("ing_cat_%1").arg(kind)));
}
