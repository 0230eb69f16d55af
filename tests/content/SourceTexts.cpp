#include "content/SourceTexts.h"

#include "content/ShippedContent.h"

#include <QDirIterator>
#include <QSet>

namespace kesto::test
{

namespace
{

/// Walks through a text once and collects its literals.
class Scanner
{
public:
    Scanner(const QString &code, QString file)
        : code_(code)
        , file_(std::move(file))
        , qml_(file_.endsWith(QStringLiteral(".qml")))
    {
    }

    QList<SourceText> scan()
    {
        while (position_ < code_.size()) {
            if (skipComment() || skipDirective())
                continue;
            const QChar c = code_[position_];
            if (c == u'"' || (qml_ && (c == u'\'' || c == u'`')))
                readText(c);
            else if (c == u'\'')
                skipCharacter();
            else if (c.isLetter() || c == u'_')
                readWord();
            else
                readSign(c);
        }
        return texts_;
    }

private:
    [[nodiscard]] bool at(const char *text) const
    {
        return QStringView(code_).mid(position_).startsWith(QLatin1String(text));
    }

    void advance(qsizetype count)
    {
        for (; count > 0 && position_ < code_.size(); --count)
            line_ += code_[position_++] == u'\n' ? 1 : 0;
    }

    void advanceTo(const QString &end)
    {
        const qsizetype found = code_.indexOf(end, position_);
        advance((found < 0 ? code_.size() : found + end.size()) - position_);
    }

    bool skipComment()
    {
        if (at("//"))
            advanceTo(QStringLiteral("\n"));
        else if (at("/*"))
            advanceTo(QStringLiteral("*/"));
        else
            return false;
        return true;
    }

    bool skipDirective()
    {
        if (!at("#include"))
            return false;
        advanceTo(QStringLiteral("\n"));
        return true;
    }

    void skipCharacter()
    {
        // Between digits it separates thousands.
        if (position_ > 0 && code_[position_ - 1].isDigit()) {
            advance(1);
            return;
        }
        advance(1);
        while (position_ < code_.size() && code_[position_] != u'\'')
            advance(code_[position_] == u'\\' ? 2 : 1);
        advance(1);
        joins_ = false;
    }

    void readWord()
    {
        const qsizetype start = position_;
        while (position_ < code_.size() && (code_[position_].isLetterOrNumber() || code_[position_] == u'_'))
            advance(1);
        word_ = code_.mid(start, position_ - start);
        if (word_.endsWith(u'R') && at("\"") && !qml_) {
            readRawText();
            return;
        }
        // The prefix and the suffix of a literal don't part it from the next one.
        static const QSet<QString> affixes{QStringLiteral("u"), QStringLiteral("u8"), QStringLiteral("L"),
                                           QStringLiteral("_qs"), QStringLiteral("_s")};
        if (!affixes.contains(word_))
            joins_ = false;
    }

    void readSign(QChar c)
    {
        if (c == u'(') {
            ++depth_;
            if (callDepth_ == 0 && (word_ == u"localized" || word_ == u"locolized"))
                callDepth_ = depth_;
        } else if (c == u')') {
            if (depth_ == callDepth_)
                callDepth_ = 0;
            --depth_;
        }
        if (!c.isSpace()) {
            word_.clear();
            joins_ = false;
        }
        advance(1);
    }

    void readText(QChar quote)
    {
        const int line = line_;
        QString text;
        advance(1);
        while (position_ < code_.size() && code_[position_] != quote) {
            if (code_[position_] == u'\\')
                text += escaped();
            else {
                text += code_[position_];
                advance(1);
            }
        }
        advance(1);
        add(text, line);
    }

    QString escaped()
    {
        advance(1);
        const QChar c = position_ < code_.size() ? code_[position_] : QChar();
        advance(1);
        if (c == u'n')
            return QStringLiteral("\n");
        if (c == u't')
            return QStringLiteral("\t");
        if (c == u'u' || c == u'x') {
            const qsizetype length = c == u'u' ? 4 : 2;
            const QString digits = code_.mid(position_, length);
            advance(length);
            return QString(QChar(digits.toUShort(nullptr, 16)));
        }
        return c == u'\n' ? QString() : QString(c);
    }

    void readRawText()
    {
        const int line = line_;
        const qsizetype open = code_.indexOf(u'(', position_);
        const QString end = u')' + code_.mid(position_ + 1, open - position_ - 1) + u'"';
        const qsizetype close = code_.indexOf(end, open);
        const QString text = code_.mid(open + 1, close - open - 1);
        advance(close + end.size() - position_);
        add(text, line);
    }

    void add(const QString &text, int line)
    {
        if (joins_)
            texts_.last().text += text;
        else
            texts_.append({text, file_, line, callDepth_ > 0});
        joins_ = true;
        word_.clear();
    }

    const QString &code_;
    const QString file_;
    const bool qml_;
    QList<SourceText> texts_;
    qsizetype position_ = 0;
    int line_ = 1;
    int depth_ = 0;
    int callDepth_ = 0;  ///< of the parenthesis of the call that localises, 0 outside of one
    QString word_;       ///< the last word, while nothing but blanks came behind it
    bool joins_ = false; ///< nothing but blanks came behind the last literal
};

} // namespace

QList<SourceText> textsIn(const QString &code, const QString &file) { return Scanner(code, file).scan(); }

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
