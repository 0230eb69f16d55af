#include "util/Parsing.h"

#include <stdexcept>

namespace kesto
{

namespace
{
qsizetype positionOf(const QString &marker, const QString &text, qsizetype from = 0)
{
    return marker.isEmpty() ? -1 : text.indexOf(marker, from);
}
} // namespace

QString stringBySubtractingWithBeginString(const QString &text, const QString &beginString)
{
    const qsizetype first = positionOf(beginString, text);
    if (first < 0)
        throw std::out_of_range("the begin string does not occur");
    const qsizetype start = first + beginString.size();
    const qsizetype second = positionOf(beginString, text, start);
    return text.mid(start, second < 0 ? -1 : second - start);
}

QString stringBySubtractingWithEndString(const QString &text, const QString &endString)
{
    const qsizetype end = positionOf(endString, text);
    return end < 0 ? text : text.first(end);
}

QString stringBySubtractingWithBeginString(const QString &text, const QString &beginString, const QString &endString)
{
    return stringBySubtractingWithEndString(stringBySubtractingWithBeginString(text, beginString), endString);
}

QString stringByRemovingString(const QString &text, const QString &string)
{
    return string.isEmpty() ? text : QString(text).remove(string);
}

QString stringByRemovingStringsFromArray(const QString &text, const QStringList &strings)
{
    return strings.isEmpty() ? text : stringByRemovingString(text, strings.last());
}

QString stringByRemovingWhiteSpaceInBegining(const QString &text)
{
    qsizetype spaces = 0;
    while (spaces < text.size() && text[spaces] == u' ')
        ++spaces;
    if (spaces > 0 && spaces == text.size())
        throw std::out_of_range("there is nothing but spaces");
    return text.sliced(spaces);
}

} // namespace kesto
