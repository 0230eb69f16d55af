#include "util/TypedNumber.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kesto
{

namespace
{

QString beginning(const QString &text, const QRegularExpression &number) { return number.match(text).captured(1); }

} // namespace

float floatValue(const QString &text)
{
    static const QRegularExpression number(
        QStringLiteral(R"(^\s*([+-]?(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:[eE][+-]?[0-9]+)?))"));
    QString typed = text;
    typed.replace(u',', u'.');
    // toDouble() returns infinity or 0 for a number out of range; its success flag does not matter.
    const double value = beginning(typed, number).toDouble();
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -largest, largest));
}

std::optional<int> wholeNumber(const QString &text)
{
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    const auto *at = std::find_if_not(text.begin(), text.end(), [](QChar character) { return character.isSpace(); });
    const bool negative = at != text.end() && *at == u'-';
    if (negative || (at != text.end() && *at == u'+'))
        ++at;
    if (at == text.end() || !isDigit(*at))
        return std::nullopt;
    qint64 value = 0;
    constexpr qint64 largest = std::numeric_limits<int>::max();
    for (; at != text.end() && isDigit(*at) && value <= largest; ++at)
        value = value * 10 + (at->unicode() - u'0');
    return static_cast<int>(negative ? -std::min(value, largest + 1) : std::min(value, largest));
}

int integerValue(const QString &text) { return wholeNumber(text).value_or(0); }

} // namespace kesto
