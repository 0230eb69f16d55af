#include "platform/AtomicFile.h"
#include "platform/Log.h"
#include "platform/PropertyList.h"

#include <QDateTime>
#include <QFile>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <utility>

#include <pugixml.hpp>

namespace kesto::PropertyList
{

namespace
{

constexpr int deepestNesting = 256;

struct Fault
{
    ptrdiff_t offset = 0; // in the bytes
    QString reason;
};

template <class T>
using Read = tl::expected<T, Fault>;

tl::unexpected<Fault> fault(const pugi::xml_node &node, QString reason)
{
    return tl::unexpected(Fault{std::max<ptrdiff_t>(node.offset_debug(), 0), std::move(reason)});
}

tl::unexpected<Fault> fault(const pugi::xml_node &node, const char *reason, const QString &text)
{
    return fault(node, QString::fromLatin1(reason).arg(text.left(40)));
}

QString nameOf(const pugi::xml_node &node) { return QString::fromUtf8(node.name()); }

bool is(const pugi::xml_node &node, const char *name) { return std::strcmp(node.name(), name) == 0; }

// The node, or the first one after it that is no white space.
pugi::xml_node afterSpace(pugi::xml_node node)
{
    while (node.type() == pugi::node_pcdata && node.value()[std::strspn(node.value(), " \t\r\n")] == '\0')
        node = node.next_sibling();
    return node;
}

// The element there; null at the end. Text is a fault.
Read<pugi::xml_node> elementFrom(pugi::xml_node node)
{
    node = afterSpace(node);
    if (node && node.type() != pugi::node_element)
        return fault(node, "text where a value should be: %1", QString::fromUtf8(node.value()).trimmed());
    return node;
}

// Appends a text with its references replaced. Not left to pugixml, which keeps unknown ones as they are written, ends
// the text at "&#0;" and makes bytes that are no UTF-8 of other numbers that stand for no character.
bool appendUnescaped(const QString &text, QString &result)
{
    constexpr std::pair<QStringView, char32_t> names[] = {
        {u"amp", U'&'}, {u"lt", U'<'}, {u"gt", U'>'}, {u"quot", U'"'}, {u"apos", U'\''}};
    qsizetype done = 0;
    for (qsizetype at = text.indexOf(u'&'); at >= 0; at = text.indexOf(u'&', done)) {
        const qsizetype end = std::max(text.indexOf(u';', at), at + 1);
        const QStringView name = QStringView(text).sliced(at + 1, end - at - 1);
        char32_t character = 0;
        if (name.startsWith(u'#')) {
            const bool hexadecimal = name.startsWith(u"#x");
            const QStringView digits = name.sliced(hexadecimal ? 2 : 1);
            if (std::all_of(digits.begin(), digits.end(), [](QChar c) { return c.isLetterOrNumber(); }))
                character = digits.toUInt(nullptr, hexadecimal ? 16 : 10);
        } else if (const auto *const found = std::find_if(std::begin(names), std::end(names),
                                                          [&](const auto &one) { return one.first == name; });
                   found != std::end(names)) {
            character = found->second;
        }
        if (character == 0 || character > QChar::LastValidCodePoint || QChar::isSurrogate(character))
            return false;
        result += QStringView(text).sliced(done, at - done);
        result += QChar::fromUcs4(character);
        done = end + 1;
    }
    result += QStringView(text).sliced(done);
    return true;
}

Read<QString> textOf(const pugi::xml_node &element)
{
    QString result;
    for (const pugi::xml_node &part : element) {
        const QString text = QString::fromUtf8(part.value());
        if (part.type() == pugi::node_element)
            return fault(part, "an element inside %1", nameOf(element));
        if (part.type() == pugi::node_cdata)
            result += text;
        else if (!appendUnescaped(text, result))
            return fault(part, "a reference to no character in: %1", text.trimmed());
    }
    return result.isNull() ? QLatin1String("") : result;
}

Read<QVariant> readReal(const pugi::xml_node &element, const QString &text)
{
    const QByteArray digits = text.trimmed().toLatin1();
    // from_chars() knows no plus.
    const char *const begin = digits.cbegin() + (digits.startsWith('+') && !digits.startsWith("+-") ? 1 : 0);
    double number = 0;
    const auto result = std::from_chars(begin, digits.cend(), number);
    if (result.ec != std::errc() || result.ptr != digits.cend())
        return fault(element, "not a number: %1", text);
    return number;
}

Read<QVariant> readDate(const pugi::xml_node &element, const QString &text)
{
    const QDateTime date = QDateTime::fromString(text.trimmed(), Qt::ISODate);
    // The one form of all that ISO 8601 allows.
    if (!date.isValid() || date.timeSpec() != Qt::UTC || date.toString(Qt::ISODate) != text.trimmed())
        return fault(element, "not a date: %1", text);
    return date;
}

Read<QVariant> readData(const pugi::xml_node &element, const QString &text)
{
    QByteArray encoded = text.toLatin1();
    encoded.removeIf([](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
    const auto decoded = QByteArray::fromBase64Encoding(encoded, QByteArray::AbortOnBase64DecodingErrors);
    // What is cut off in the middle of four characters decodes, but something is missing.
    if (!decoded || encoded.size() % 4 != 0)
        return fault(element, QStringLiteral("not base64"));
    return decoded.decoded;
}

Read<QVariant> readScalar(const pugi::xml_node &element)
{
    const Read<QString> text = textOf(element);
    if (!text)
        return tl::unexpected(text.error());
    if (is(element, "string"))
        return *text;
    if (is(element, "integer")) {
        bool whole = false;
        const qint64 number = text->trimmed().toLongLong(&whole);
        if (!whole)
            return fault(element, "not a whole number of 64 bits: %1", *text);
        return number;
    }
    if (is(element, "real"))
        return readReal(element, *text);
    if (is(element, "date"))
        return readDate(element, *text);
    if (is(element, "data"))
        return readData(element, *text);
    if (is(element, "key"))
        return fault(element, QStringLiteral("a key outside a dictionary"));
    if (!is(element, "true") && !is(element, "false"))
        return fault(element, "%1 is no element of a property list", nameOf(element));
    if (!text->trimmed().isEmpty())
        return fault(element, "%1 with content", nameOf(element));
    return is(element, "true");
}

Read<QVariant> readValue(const pugi::xml_node &element, int depth);

Read<QVariant> readArray(const pugi::xml_node &array, int depth)
{
    QVariantList list;
    Read<pugi::xml_node> item = elementFrom(array.first_child());
    for (; item && *item; item = elementFrom(item->next_sibling())) {
        Read<QVariant> value = readValue(*item, depth + 1);
        if (!value)
            return value;
        list.append(std::move(*value));
    }
    if (!item)
        return tl::unexpected(item.error());
    return list;
}

Read<QVariant> readDictionary(const pugi::xml_node &dictionary, int depth)
{
    QVariantMap map;
    Read<pugi::xml_node> key = elementFrom(dictionary.first_child());
    while (key && *key) {
        if (!is(*key, "key"))
            return fault(*key, QStringLiteral("a value without a key"));
        const Read<QString> name = textOf(*key);
        if (!name)
            return tl::unexpected(name.error());
        const Read<pugi::xml_node> item = elementFrom(key->next_sibling());
        if (!item)
            return tl::unexpected(item.error());
        if (!*item || is(*item, "key"))
            return fault(*key, "the key %1 has no value", *name);
        Read<QVariant> value = readValue(*item, depth + 1);
        if (!value)
            return value;
        map.insert(map.cend(), *name, std::move(*value)); // of equal keys the last one counts
        key = elementFrom(item->next_sibling());
    }
    if (!key)
        return tl::unexpected(key.error());
    return map;
}

Read<QVariant> readValue(const pugi::xml_node &element, int depth)
{
    if (depth > deepestNesting)
        return fault(element, QStringLiteral("values nested deeper than %1").arg(deepestNesting));
    if (is(element, "array"))
        return readArray(element, depth);
    if (is(element, "dict"))
        return readDictionary(element, depth);
    return readScalar(element);
}

Read<QVariant> readDocument(const pugi::xml_document &document)
{
    pugi::xml_node first = afterSpace(document.first_child());
    if (first.type() == pugi::node_doctype) {
        if (std::strchr(first.value(), '[') != nullptr)
            return fault(first, QStringLiteral("a document type with declarations"));
        first = first.next_sibling();
    }
    const Read<pugi::xml_node> root = elementFrom(first);
    if (!root)
        return tl::unexpected(root.error());
    if (!is(*root, "plist"))
        return fault(*root, QStringLiteral("the root element is not plist"));
    const Read<pugi::xml_node> value = elementFrom(root->first_child());
    const Read<pugi::xml_node> second = value && *value ? elementFrom(value->next_sibling()) : value;
    if (!second)
        return tl::unexpected(second.error());
    if (!*value)
        return fault(*root, QStringLiteral("plist without a value"));
    if (*second)
        return fault(*second, QStringLiteral("plist with more than one value"));
    const Read<pugi::xml_node> other = elementFrom(root->next_sibling());
    if (!other)
        return tl::unexpected(other.error());
    if (*other)
        return fault(*other, QStringLiteral("a second root element"));
    return readValue(*value, 1);
}

// No byte of another character is a line feed.
ptrdiff_t firstLineOutsideUtf8(const QByteArray &bytes)
{
    qsizetype start = 0;
    for (const QByteArray &line : bytes.split('\n')) {
        if (!line.isValidUtf8() || line.contains('\0'))
            break;
        start += line.size() + 1;
    }
    return start;
}

Read<QVariant> readBytes(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return tl::unexpected(Fault{0, QStringLiteral("empty")});
    if (bytes.startsWith("bplist"))
        return tl::unexpected(Fault{0, QStringLiteral("a binary property list")});
    if (!bytes.isValidUtf8() || bytes.contains('\0'))
        return tl::unexpected(Fault{firstLineOutsideUtf8(bytes), QStringLiteral("not UTF-8 text")});
    pugi::xml_document document;
    // As a fragment, so that text outside of the root element is seen.
    const pugi::xml_parse_result parsed = document.load_buffer(
        bytes.constData(), static_cast<size_t>(bytes.size()),
        pugi::parse_cdata | pugi::parse_eol | pugi::parse_ws_pcdata | pugi::parse_doctype | pugi::parse_fragment,
        pugi::encoding_utf8);
    if (!parsed)
        return tl::unexpected(Fault{parsed.offset, QString::fromLatin1(parsed.description())});
    return readDocument(document);
}

tl::unexpected<Error> refused(const QString &source, qsizetype line, QString reason)
{
    return failure(QStringLiteral("cannot read the property list"), source + u':' + QString::number(line),
                   std::move(reason));
}

} // namespace

Result<QVariant> parse(const QByteArray &bytes, const QString &source)
{
    Read<QVariant> value = readBytes(bytes);
    if (value)
        return std::move(*value);
    const qsizetype before = std::clamp<qsizetype>(value.error().offset, 0, bytes.size());
    return refused(source, bytes.first(before).count('\n') + 1, value.error().reason);
}

Result<QVariant> read(const QString &path)
{
    const Result<QByteArray> bytes = AtomicFile::read(path);
    if (!bytes)
        return tl::unexpected(bytes.error());
    return parse(*bytes, path);
}

Result<QVariantMap> readOrSetAside(const QString &path)
{
    const Result<QByteArray> bytes = AtomicFile::read(path);
    if (!bytes) {
        if (AtomicFile::isMissing(bytes.error()))
            return QVariantMap();
        return tl::unexpected(bytes.error());
    }
    Result<QVariant> content = parse(*bytes, path);
    if (content && content->typeId() != QMetaType::QVariantMap)
        content = refused(path, 1, QStringLiteral("not a dictionary"));
    if (content)
        return content->toMap();

    int number = 1;
    const auto aside = [&] { return QStringLiteral("%1.damaged-%2").arg(path, QString::number(number)); };
    while (QFile::exists(aside()))
        ++number;
    QFile file(path);
    if (!file.rename(aside()))
        return failure(QStringLiteral("cannot set the damaged file aside"), path, file.errorString());
    log(content.error().message());
    log("%@ is damaged and was renamed to %@", path, aside());
    return QVariantMap();
}

} // namespace kesto::PropertyList
