#include "platform/StringFormat.h"

#include <QStringList>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace kesto
{

namespace
{

// The shortest digits that read back as the same number; only very large and very small ones get an exponent.
template <class Number>
QString shortest(Number value)
{
    if (std::isnan(value))
        return QStringLiteral("nan");
    if (std::isinf(value))
        return value < 0 ? QStringLiteral("-inf") : QStringLiteral("inf");
    const Number size = std::abs(value);
    const bool plain = size == 0 || (size >= Number(1e-4) && size < Number(1e16));
    std::array<char, 64> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                       plain ? std::chars_format::fixed : std::chars_format::scientific);
    return QString::fromLatin1(buffer.data(), written.ptr - buffer.data());
}

// As printf() rounds: by the exact value, ties to the even digit. QString::number() rounds the shortest digits.
QString fixed(double value, int precision)
{
    std::array<char, 1500> buffer{}; // 309 digits, the point and the precision, which is 1000 at most
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, precision);
    return QString::fromLatin1(buffer.data(), written.ptr - buffer.data());
}

bool isAbsent(const QVariant &value)
{
    return !value.isValid() || value.typeId() == QMetaType::Nullptr ||
           (value.typeId() == QMetaType::QString && value.toString().isNull()) ||
           (value.typeId() == QMetaType::QDateTime && !value.toDateTime().isValid());
}

bool isUnsigned(const QVariant &value)
{
    const int type = value.typeId();
    return type == QMetaType::ULongLong || type == QMetaType::ULong || type == QMetaType::UInt;
}

QString wholeNumber(const QVariant &value)
{
    if (isAbsent(value))
        return QStringLiteral("0");
    if (isUnsigned(value))
        return QString::number(value.toULongLong());
    if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float) {
        const double number = std::trunc(value.toDouble());
        if (std::isnan(number))
            return QStringLiteral("0");
        // 2^63 is the first number that does not fit.
        if (number >= 9223372036854775808.0)
            return QString::number(std::numeric_limits<qint64>::max());
        if (number < -9223372036854775808.0)
            return QString::number(std::numeric_limits<qint64>::min());
        return QString::number(static_cast<qint64>(number));
    }
    return QString::number(value.toLongLong());
}

struct Placeholder
{
    bool left = false;
    bool zeros = false;
    bool plus = false;
    bool space = false;
    qsizetype width = 0;
    int precision = -1;
    QChar conversion;
    qsizetype end = 0; // just after it
};

Placeholder readPlaceholder(const QString &format, qsizetype position)
{
    const auto at = [&](qsizetype index) { return index < format.size() ? format[index] : QChar(); };
    const auto readNumber = [&] {
        int number = 0;
        for (; at(position) >= u'0' && at(position) <= u'9'; ++position)
            number = std::min(number * 10 + at(position).unicode() - u'0', 1000);
        return number;
    };
    Placeholder result;
    for (++position;; ++position) {
        if (at(position) == u'-')
            result.left = true;
        else if (at(position) == u'0')
            result.zeros = true;
        else if (at(position) == u'+')
            result.plus = true;
        else if (at(position) == u' ')
            result.space = true;
        else
            break;
    }
    result.width = readNumber();
    if (at(position) == u'.') {
        ++position;
        result.precision = readNumber();
    }
    while (at(position) == u'l' || at(position) == u'h' || at(position) == u'q' || at(position) == u'z')
        ++position;
    result.conversion = at(position);
    result.end = std::min(position + 1, format.size());
    return result;
}

QString written(const Placeholder &placeholder, const QVariant &value)
{
    QString text;
    bool number = true;
    switch (placeholder.conversion.unicode()) {
    case u'f':
        text = fixed(isAbsent(value) ? 0.0 : value.toDouble(), placeholder.precision < 0 ? 6 : placeholder.precision);
        break;
    case u'd':
    case u'i':
    case u'u':
        text = wholeNumber(value);
        break;
    default:
        text = plainText(value);
        number = false;
    }
    if (number && (placeholder.plus || placeholder.space) && !text.startsWith(u'-'))
        text.prepend(placeholder.plus ? u'+' : u' ');
    if (placeholder.left)
        return text.leftJustified(placeholder.width);
    if (!number || !placeholder.zeros || text.size() >= placeholder.width)
        return text.rightJustified(placeholder.width);
    const qsizetype sign = text.startsWith(u'-') || text.startsWith(u'+') || text.startsWith(u' ') ? 1 : 0;
    return text.insert(sign, QString(placeholder.width - text.size(), u'0'));
}

} // namespace

QString plainText(const QVariant &value)
{
    if (isAbsent(value))
        return QStringLiteral("(null)");
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::Float:
        return shortest(value.toFloat());
    case QMetaType::Double:
        return shortest(value.toDouble());
    case QMetaType::QDateTime:
        return value.toDateTime().toUTC().toString(u"yyyy-MM-dd HH:mm:ss '+0000'");
    case QMetaType::QByteArray:
        return u'<' + QString::fromLatin1(value.toByteArray().toHex()) + u'>';
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        QStringList elements;
        for (const QVariant &element : value.toList())
            elements.append(plainText(element));
        return u'(' + elements.join(QStringLiteral(", ")) + u')';
    }
    case QMetaType::QVariantMap: {
        QStringList entries;
        const QVariantMap map = value.toMap();
        for (auto entry = map.begin(); entry != map.end(); ++entry)
            entries.append(entry.key() + QStringLiteral(" = ") + plainText(entry.value()));
        return u'{' + entries.join(QStringLiteral("; ")) + u'}';
    }
    default:
        return value.toString();
    }
}

QString stringWithFormat(const char *format, const QList<QVariant> &arguments)
{
    const QString text = QString::fromUtf8(format);
    QString result;
    result.reserve(text.size() + 16 * arguments.size());
    qsizetype next = 0;
    qsizetype position = 0;
    while (position < text.size()) {
        const qsizetype percent = text.indexOf(u'%', position);
        if (percent < 0)
            break;
        result += QStringView(text).sliced(position, percent - position);
        const Placeholder placeholder = readPlaceholder(text, percent);
        position = placeholder.end;
        if (placeholder.conversion == u'%') {
            result += u'%';
        } else if (!QStringView(u"@dfiu").contains(placeholder.conversion) || placeholder.conversion.isNull()) {
            Q_ASSERT_X(false, "stringWithFormat", "a placeholder that is not known");
            result += QStringView(text).sliced(percent, position - percent);
        } else if (next < arguments.size()) {
            result += written(placeholder, arguments[next++]);
        } else {
            Q_ASSERT_X(false, "stringWithFormat", "more placeholders than arguments");
        }
    }
    if (position < text.size())
        result += QStringView(text).sliced(position);
    Q_ASSERT_X(next == arguments.size(), "stringWithFormat", "more arguments than placeholders");
    return result;
}

} // namespace kesto
