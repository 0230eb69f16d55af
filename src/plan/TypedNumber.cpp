#include "plan/TypedNumber.h"

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
    // Out of range this is infinite or 0, whatever the success it tells.
    const double value = beginning(typed, number).toDouble();
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -largest, largest));
}

int integerValue(const QString &text)
{
    static const QRegularExpression number(QStringLiteral(R"(^\s*([+-]?[0-9]+))"));
    const double value = beginning(text, number).toDouble(); // exact wherever an int is
    return static_cast<int>(
        std::clamp<double>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

} // namespace kesto
