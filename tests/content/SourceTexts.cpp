#include "content/SourceTexts.h"

#include "content/ShippedContent.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>

namespace kesto::test
{

namespace
{

/// What a literal stands for.
QString unescaped(const QString &literal)
{
    static const QRegularExpression escape(QStringLiteral("\\\\(?:u([0-9A-Fa-f]{4})|x([0-9A-Fa-f]{2})|(.|\n))"));
    QString text;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : escape.globalMatch(literal)) {
        text += literal.mid(end, match.capturedStart() - end);
        end = match.capturedEnd();
        const QString code = match.captured(1) + match.captured(2);
        const QString sign = match.captured(3);
        if (!code.isEmpty())
            text += QChar(code.toUShort(nullptr, 16));
        else if (sign == u'n' || sign == u't')
            text += sign == u'n' ? u'\n' : u'\t';
        else if (sign != u'\n')
            text += sign;
    }
    return text + literal.mid(end);
}

} // namespace

QList<SourceText> textsIn(const QString &code, const QString &file)
{
    // Comments and includes, raw texts, texts, characters (and digits with their separators), words, signs.
    static const QRegularExpression token(
        QStringLiteral(R"re((//[^\n]*|/\*.*?\*/|#include[^\n]*)|(?:u8|u|L)?R"(\w*)\((.*?)\)\2"|"((?:\\.|[^"\\])*)")re"
                       R"re(|'((?:\\.|[^'\\])*)'|`([^`]*)`|(\d[\w']*|\w+)|(\S))re"),
        QRegularExpression::DotMatchesEverythingOption | QRegularExpression::UseUnicodePropertiesOption);
    // The prefix and the suffix of a literal don't part it from the next one.
    static const QSet<QString> affixes{QStringLiteral("u"), QStringLiteral("u8"), QStringLiteral("L"),
                                       QStringLiteral("_qs"), QStringLiteral("_s")};
    const bool qml = file.endsWith(QStringLiteral(".qml"));
    QList<SourceText> texts;
    QString word;       // the last one, while nothing came behind it
    bool joins = false; // nothing but blanks came behind the last literal
    int depth = 0;
    int callDepth = 0; // of the parenthesis of the call that localises, 0 outside of one
    int line = 1;
    qsizetype counted = 0;
    for (const QRegularExpressionMatch &match : token.globalMatch(code)) {
        line += static_cast<int>(QStringView(code).mid(counted, match.capturedStart() - counted).count(u'\n'));
        counted = match.capturedStart();
        const auto is = [&](int group) { return match.capturedStart(group) >= 0; };
        if (is(3) || is(4) || (qml && (is(5) || is(6)))) {
            const QString text = is(3) ? match.captured(3) : unescaped(match.captured(is(4) ? 4 : is(5) ? 5 : 6));
            if (joins)
                texts.last().text += text;
            else
                texts.append({text, file, line, callDepth > 0});
            joins = true;
            word.clear();
        } else if (is(7)) {
            word = match.captured(7);
            joins = joins && affixes.contains(word);
        } else if (!is(1)) {
            const QString sign = match.captured(8);
            if (sign == u'(') {
                ++depth;
                if (callDepth == 0 && (word == u"localized" || word == u"locolized"))
                    callDepth = depth;
            } else if (sign == u')') {
                if (depth == callDepth)
                    callDepth = 0;
                --depth;
            }
            word.clear();
            joins = false;
        }
    }
    return texts;
}

const QList<SourceText> &textsOfTheProgram()
{
    static const QList<SourceText> texts = [] {
        const QString folder = QStringLiteral(KESTO_SOURCES "/src/");
        const QStringList patterns{QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.qml")};
        QList<SourceText> all;
        QDirIterator files(folder, patterns, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            all += textsIn(ShippedContent::textOf(path), path.mid(folder.size()));
        }
        return all;
    }();
    return texts;
}

} // namespace kesto::test
