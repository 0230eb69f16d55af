#include "platform/PropertyList.h"

#include "platform/AtomicFile.h"
#include "platform/StringFormat.h"

#include <QDateTime>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace kesto::PropertyList
{

namespace
{

constexpr int deepestNesting = 256;

double sameText(float value)
{
    if (!std::isfinite(value))
        return value;
    std::array<char, 32> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    double result = 0;
    std::from_chars(buffer.data(), written.ptr, result);
    return static_cast<float>(result) == value ? result : value;
}

std::optional<QVariant> normalizedTo(const QVariant &value, int depth)
{
    if (depth > deepestNesting)
        return std::nullopt;
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::LongLong:
    case QMetaType::Double:
    case QMetaType::Bool:
    case QMetaType::QByteArray:
        return value;
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
        return QVariant(value.toLongLong());
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        if (value.toULongLong() > static_cast<quint64>(std::numeric_limits<qint64>::max()))
            return std::nullopt;
        return QVariant(value.toLongLong());
    case QMetaType::Float:
        return QVariant(sameText(value.toFloat()));
    case QMetaType::QDateTime: {
        const QDateTime date = value.toDateTime().toUTC();
        if (!date.isValid() || date.date().year() < 0 || date.date().year() > 9999)
            return std::nullopt;
        return QVariant(date);
    }
    case QMetaType::QStringList:
    case QMetaType::QVariantList: {
        QVariantList list;
        for (const QVariant &element : value.toList()) {
            const std::optional<QVariant> normal = normalizedTo(element, depth + 1);
            if (!normal)
                return std::nullopt;
            list.append(*normal);
        }
        return QVariant(list);
    }
    case QMetaType::QVariantMap: {
        QVariantMap map;
        const QVariantMap original = value.toMap();
        for (auto entry = original.begin(); entry != original.end(); ++entry) {
            const std::optional<QVariant> normal = normalizedTo(entry.value(), depth + 1);
            if (!normal)
                return std::nullopt;
            map.insert(map.cend(), entry.key(), *normal);
        }
        return QVariant(map);
    }
    default:
        return std::nullopt;
    }
}

class Writer
{
public:
    QByteArray bytes;

    void append(const QVariant &value, int depth)
    {
        switch (value.typeId()) {
        case QMetaType::QString:
            element("string", value.toString(), depth);
            break;
        case QMetaType::LongLong:
            line(depth, "<integer>" + QByteArray::number(value.toLongLong()) + "</integer>");
            break;
        case QMetaType::Double:
            line(depth, "<real>" + real(value.toDouble()) + "</real>");
            break;
        case QMetaType::Bool:
            line(depth, value.toBool() ? "<true/>" : "<false/>");
            break;
        case QMetaType::QDateTime:
            line(depth, "<date>" + value.toDateTime().toString(u"yyyy-MM-ddTHH:mm:ssZ").toLatin1() + "</date>");
            break;
        case QMetaType::QByteArray:
            line(depth, "<data>" + value.toByteArray().toBase64() + "</data>");
            break;
        case QMetaType::QVariantList:
            line(depth, "<array>");
            for (const QVariant &entry : value.toList())
                append(entry, depth + 1);
            line(depth, "</array>");
            break;
        default:
            appendDictionary(value.toMap(), depth);
        }
    }

private:
    void appendDictionary(const QVariantMap &map, int depth)
    {
        line(depth, "<dict>");
        for (auto entry = map.begin(); entry != map.end(); ++entry) {
            element("key", entry.key(), depth + 1);
            append(entry.value(), depth + 1);
        }
        line(depth, "</dict>");
    }

    void line(int depth, const QByteArray &text) { bytes.append(depth, '\t').append(text).append('\n'); }

    void element(const char *name, const QString &text, int depth)
    {
        bytes.append(depth, '\t').append('<').append(name).append('>');
        appendEscaped(text);
        bytes.append("</").append(name).append(">\n");
    }

    void appendEscaped(const QString &text)
    {
        QString clean = text;
        for (qsizetype i = 0; i < clean.size(); ++i) {
            const QChar c = clean[i];
            if (c.isHighSurrogate() && i + 1 < clean.size() && clean[i + 1].isLowSurrogate())
                ++i;
            else if (c.isSurrogate() || c.unicode() >= 0xfffe || (c < u' ' && c != u'\t' && c != u'\n' && c != u'\r'))
                clean[i] = QChar::ReplacementCharacter;
        }
        for (const char c : clean.toUtf8()) {
            switch (c) {
            case '&':
                bytes.append("&amp;");
                break;
            case '<':
                bytes.append("&lt;");
                break;
            case '>':
                bytes.append("&gt;");
                break;
            case '\r': // a reader would take it for a line end
                bytes.append("&#13;");
                break;
            default:
                bytes.append(c);
            }
        }
    }

    static QByteArray real(double value)
    {
        if (std::isnan(value))
            return "nan";
        if (std::isinf(value))
            return value < 0 ? "-infinity" : "+infinity";
        std::array<char, 32> buffer{};
        const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
        return {buffer.data(), written.ptr - buffer.data()};
    }
};

} // namespace

std::optional<QVariant> normalized(const QVariant &value) { return normalizedTo(value, 1); }

Result<QByteArray> serialize(const QVariant &value)
{
    const std::optional<QVariant> normal = normalized(value);
    if (!normal) {
        return failure(
            QStringLiteral("cannot write the property list"), {},
            stringWithFormat("a value of type %@ has no form in it", value.isValid() ? value.typeName() : "nothing"));
    }
    Writer writer;
    writer.bytes = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                   "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                   "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                   "<plist version=\"1.0\">\n";
    writer.append(*normal, 0);
    writer.bytes.append("</plist>\n");
    return writer.bytes;
}

Result<void> write(const QVariant &value, const QString &path)
{
    const Result<QByteArray> bytes = serialize(value);
    if (!bytes)
        return failure(bytes.error().what, path, bytes.error().reason);
    return AtomicFile::write(*bytes, path);
}

} // namespace kesto::PropertyList
