#include "platform/StringTablesParser.h"

#include "platform/Log.h"

#include <algorithm>

namespace kesto
{

QHash<QString, QString> StringTablesParser::parse()
{
    QHash<QString, QString> entries;
    if (text_.startsWith(QChar::ByteOrderMark))
        ++position_;
    while (skipBlanksAndComments()) {
        const qsizetype start = position_;
        QString key;
        QString value;
        if (!readEntry(key, value)) {
            // A quotation mark that is missing shifts all that follow: go on after the line where the entry began.
            position_ = endOfLine(start);
            continue;
        }
        if (entries.contains(key))
            slip(start, QStringLiteral("the key \"%1\" is there twice").arg(key));
        entries.insert(key, value);
    }
    return entries;
}

bool StringTablesParser::skipBlanksAndComments()
{
    while (!atEnd()) {
        const QStringView rest = text_.sliced(position_);
        if (rest.front().isSpace()) {
            ++position_;
        } else if (rest.startsWith(u"//")) {
            position_ = endOfLine(position_);
        } else if (rest.startsWith(u"/*")) {
            const qsizetype end = text_.indexOf(u"*/", position_ + 2);
            if (end < 0) {
                slip(position_, QStringLiteral("a comment without an end"));
                position_ = endOfLine(position_);
            } else {
                position_ = end + 2;
            }
        } else {
            return true;
        }
    }
    return false;
}

bool StringTablesParser::readEntry(QString &key, QString &value)
{
    const qsizetype start = position_;
    if (!readText(key) || !expect(u'='))
        return false;
    if (!skipBlanksAndComments()) {
        slip(start, QStringLiteral("the text ends within an entry"));
        return false;
    }
    if (!readText(value))
        return false;
    const qsizetype end = position_;
    skipBlanksAndComments();
    if (!atEnd() && text_[position_] == u';') {
        ++position_;
        return true;
    }
    slip(end, QStringLiteral("; is missing"));
    // The entry itself is clear when another follows; otherwise a quotation mark may be missing.
    position_ = end;
    return !skipBlanksAndComments() || text_[position_] == u'"';
}

bool StringTablesParser::readText(QString &result)
{
    const qsizetype start = position_;
    if (text_[position_] != u'"')
        return readUnquoted(result);
    result = QLatin1String(""); // an empty text is not an absent one
    for (++position_; !atEnd(); ++position_) {
        const QChar c = text_[position_];
        if (c == u'"') {
            ++position_;
            return true;
        }
        if (c == u'\\')
            readEscape(result);
        else
            result += c;
    }
    slip(start, QStringLiteral("a text without an end"));
    return false;
}

bool StringTablesParser::readUnquoted(QString &result)
{
    const qsizetype start = position_;
    while (!atEnd() && (text_[position_].isLetterOrNumber() || QStringView(u"_.-$").contains(text_[position_])))
        ++position_;
    result = text_.sliced(start, position_ - start).toString();
    if (position_ == start)
        slip(start, QStringLiteral("\" is missing before %1").arg(text_[start]));
    return position_ > start;
}

// At the backslash; leaves the position at the escape's last character.
void StringTablesParser::readEscape(QString &result)
{
    const QChar c = position_ + 1 < text_.size() ? text_[position_ + 1] : QChar();
    switch (c.unicode()) {
    case u'n':
        result += u'\n';
        break;
    case u't':
        result += u'\t';
        break;
    case u'r':
        result += u'\r';
        break;
    case u'"':
    case u'\'':
    case u'\\':
        result += c;
        break;
    case u'U': {
        const QStringView digits = text_.mid(position_ + 2, 4);
        const bool valid = digits.size() == 4 && std::all_of(digits.begin(), digits.end(), [](QChar digit) {
                               return QStringView(u"0123456789abcdefABCDEF").contains(digit);
                           });
        if (valid) {
            result += QChar(digits.toUShort(nullptr, 16));
            position_ += 5;
            return;
        }
        [[fallthrough]];
    }
    default:
        slip(position_, QStringLiteral("an unknown escape: \\%1").arg(c));
        result += u'\\'; // stays as it is written
        return;
    }
    ++position_;
}

bool StringTablesParser::expect(QChar expected)
{
    if (skipBlanksAndComments() && text_[position_] == expected) {
        ++position_;
        return true;
    }
    slip(position_, QStringLiteral("%1 is missing").arg(expected));
    return false;
}

qsizetype StringTablesParser::endOfLine(qsizetype position) const
{
    const qsizetype end = text_.indexOf(u'\n', position);
    return end < 0 ? text_.size() : end;
}

void StringTablesParser::slip(qsizetype position, const QString &reason) const
{
    const qsizetype line = text_.first(position).count(u'\n') + 1;
    log(QStringLiteral("%1:%2: %3").arg(source_, QString::number(line), reason));
}

} // namespace kesto
