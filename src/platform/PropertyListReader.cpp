#include "platform/PropertyList.h"

#include "platform/AtomicFile.h"
#include "platform/Log.h"
#include "platform/PropertyListScanner.h"
#include "platform/Utf8.h"

#include <QDateTime>
#include <QFile>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace kesto::PropertyList
{

namespace
{

constexpr int deepestNesting = 256;

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

QString toText(std::string_view utf8) { return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())); }

// Enough of a text to find it by.
QString shortened(std::string_view utf8) { return toText(utf8.substr(0, 200)).left(40); }

// Whole text only: what follows the number makes it no number.
template <class Number>
bool readNumber(std::string_view text, Number &number)
{
    text = trimmed(text);
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1); // from_chars() knows no plus
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc() && result.ptr == text.data() + text.size();
}

bool readDate(std::string_view text, QDateTime &date)
{
    text = trimmed(text);
    constexpr std::string_view shape = "0000-00-00T00:00:00Z";
    if (text.size() != shape.size())
        return false;
    for (size_t i = 0; i < shape.size(); ++i) {
        if (shape[i] == '0' ? (text[i] < '0' || text[i] > '9') : text[i] != shape[i])
            return false;
    }
    const auto number = [&](size_t position, size_t length) {
        int value = 0;
        readNumber(text.substr(position, length), value);
        return value;
    };
    const QTime time(number(11, 2), number(14, 2), number(17, 2));
    date = QDateTime(QDate(number(0, 4), number(5, 2), number(8, 2)), time, Qt::UTC);
    return date.isValid() && time.isValid(); // a date takes a wrong time for midnight
}

// Turns the elements into values. The first fault ends it.
class Reader
{
public:
    explicit Reader(std::string_view bytes)
        : bytes_(bytes)
        , scanner_(bytes)
    {
    }

    [[nodiscard]] const PropertyListScanner::Fault &fault() const { return scanner_.fault(); }

    bool readDocument(QVariant &value)
    {
        Item root;
        const Found found = scanner_.next({}, root);
        if (found == Found::Fault)
            return false;
        if (found == Found::End || bytes_.find('<') == std::string_view::npos)
            return fails(root, QStringLiteral("No document element found"));
        if (found == Found::Text)
            return fails(root, QStringLiteral("text outside of the root element"));
        if (root.name != "plist")
            return fails(root, QStringLiteral("the root element is not plist"));

        bool holdsValue = false;
        if (!readRoot(root, value, holdsValue))
            return false;
        Item other;
        switch (scanner_.next({}, other)) {
        case Found::Fault:
            return false;
        case Found::Element:
            return fails(other, QStringLiteral("a second root element"));
        case Found::Text:
            return fails(other, QStringLiteral("text outside of the root element"));
        case Found::End:
            break;
        }
        return holdsValue || fails(root, QStringLiteral("plist without a value"));
    }

private:
    using Item = PropertyListScanner::Item;
    using Found = PropertyListScanner::Found;

    bool fails(const Item &item, QString why) { return scanner_.fails(item.offset, std::move(why)); }

    bool fails(const Item &item, const char *why, std::string_view text)
    {
        return fails(item, QString::fromLatin1(why).arg(shortened(text)));
    }

    // The next element inside of another; text there is a fault.
    Found nextChild(const Item &parent, bool first, Item &child)
    {
        if (parent.selfClosing)
            return Found::End;
        const Found found = scanner_.next(parent.name, child);
        if (found != Found::Text)
            return found;
        if (first)
            fails(parent, "text between the elements of %1", parent.name);
        else
            fails(child, "text where a value should be: %1", child.text);
        return Found::Fault;
    }

    bool readRoot(const Item &root, QVariant &value, bool &holdsValue)
    {
        Item child;
        Found found = nextChild(root, true, child);
        if (found == Found::Element) {
            holdsValue = true;
            if (!readValue(child, 1, value))
                return false;
            found = nextChild(root, false, child);
            if (found == Found::Element)
                return fails(child, QStringLiteral("plist with more than one value"));
        }
        return found == Found::End;
    }

    bool readArray(const Item &array, int depth, QVariant &value)
    {
        QVariantList list;
        Item item;
        Found found = nextChild(array, true, item);
        for (; found == Found::Element; found = nextChild(array, false, item)) {
            if (list.isEmpty())
                list.reserve(16);
            // Most of what lists hold; made in place.
            if (item.name == "string" && depth < deepestNesting) {
                QStringView text;
                if (!scanner_.readText(item, text))
                    return false;
                list.emplace_back(QString(text.data(), text.size()));
            } else if (!readValue(item, depth + 1, list.emplace_back())) {
                return false;
            }
        }
        value = list;
        return found == Found::End;
    }

    bool readDictionary(const Item &dictionary, int depth, QVariant &value)
    {
        std::map<QString, QVariant> map;
        Item key;
        Item item;
        Found found = nextChild(dictionary, true, key);
        for (; found == Found::Element; found = nextChild(dictionary, false, key)) {
            if (key.name != "key")
                return fails(key, QStringLiteral("a value without a key"));
            std::string_view bytes;
            if (!scanner_.readBytes(key, bytes))
                return false;
            const QString *const text = keyText(bytes);
            if (text == nullptr)
                return fails(key, QStringLiteral("not UTF-8 text"));
            found = nextChild(dictionary, false, item);
            if (found == Found::Fault)
                return false;
            if (found == Found::End || item.name == "key")
                return fails(key, "the key %1 has no value", bytes);
            // Files that programs write are sorted by key. Of equal keys the last one counts.
            if (!readValue(item, depth + 1, map.try_emplace(map.end(), *text)->second))
                return false;
        }
        value = QVariantMap(std::move(map));
        return found == Found::End;
    }

    // Dictionaries of a list repeat their keys; each text is made once. Nothing when the bytes are no text.
    const QString *keyText(std::string_view key)
    {
        const auto found = keys_.find(key);
        if (found != keys_.end())
            return &found->second;
        if (firstByteOutsideUtf8(key) >= 0)
            return nullptr;
        return &keys_.emplace(std::string(key), toText(key)).first->second;
    }

    bool readValue(const Item &element, int depth, QVariant &value)
    {
        if (depth > deepestNesting)
            return fails(element, QStringLiteral("values nested deeper than %1").arg(deepestNesting));
        if (element.name == "string") {
            QStringView text;
            if (!scanner_.readText(element, text))
                return false;
            value = QString(text.data(), text.size());
            return true;
        }
        if (element.name == "array")
            return readArray(element, depth, value);
        if (element.name == "dict")
            return readDictionary(element, depth, value);
        return readScalar(element, value);
    }

    bool readScalar(const Item &element, QVariant &value)
    {
        const std::string_view name = element.name;
        constexpr std::string_view known[] = {"true", "false", "integer", "real", "date", "data"};
        if (name == "key")
            return fails(element, QStringLiteral("a key outside a dictionary"));
        if (std::find(std::begin(known), std::end(known), name) == std::end(known))
            return fails(element, "%1 is no element of a property list", name);
        // What these take is ASCII, so that bytes outside of UTF-8 fail with the rest.
        std::string_view text;
        if (!scanner_.readBytes(element, text))
            return false;
        if (name == "data")
            return readData(element, text, value);
        if (name == "integer") {
            qint64 number = 0;
            if (!readNumber(text, number))
                return fails(element, "not a whole number of 64 bits: %1", text);
            value = number;
        } else if (name == "real") {
            double number = 0;
            if (!readNumber(text, number))
                return fails(element, "not a number: %1", text);
            value = number;
        } else if (name == "date") {
            QDateTime date;
            if (!readDate(text, date))
                return fails(element, "not a date: %1", text);
            value = date;
        } else {
            if (!trimmed(text).empty())
                return fails(element, "%1 with content", name);
            value = name == "true";
        }
        return true;
    }

    bool readData(const Item &element, std::string_view text, QVariant &value)
    {
        QByteArray encoded(text.data(), static_cast<qsizetype>(text.size()));
        encoded.removeIf([](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
        const auto decoded = QByteArray::fromBase64Encoding(encoded, QByteArray::AbortOnBase64DecodingErrors);
        // What is cut off in the middle of four characters decodes, but something is missing.
        if (!decoded || encoded.size() % 4 != 0)
            return fails(element, QStringLiteral("not base64"));
        value = decoded.decoded;
        return true;
    }

    struct Hash
    {
        using is_transparent = void;
        size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    };

    const std::string_view bytes_;
    PropertyListScanner scanner_;
    std::unordered_map<std::string, QString, Hash, std::equal_to<>> keys_;
};

tl::unexpected<Error> refused(const QString &source, qsizetype line, QString reason)
{
    return failure(QStringLiteral("cannot read the property list"), source + u':' + QString::number(line),
                   std::move(reason));
}

} // namespace

Result<QVariant> parse(const QByteArray &bytes, const QString &source)
{
    const auto lineOf = [&](ptrdiff_t offset) {
        const auto end = bytes.begin() + std::clamp<qsizetype>(offset, 0, bytes.size());
        return std::count(bytes.begin(), end, '\n') + 1;
    };
    const std::string_view content(bytes.constData(), static_cast<size_t>(bytes.size()));
    if (bytes.isEmpty())
        return refused(source, 1, QStringLiteral("empty"));
    if (bytes.startsWith("bplist"))
        return refused(source, 1, QStringLiteral("a binary property list"));

    Reader reader(content);
    QVariant value;
    if (reader.readDocument(value))
        return value;
    // Bytes of another encoding look like all kinds of faults.
    if (const ptrdiff_t place = firstByteOutsideUtf8(content); place >= 0)
        return refused(source, lineOf(place), QStringLiteral("not UTF-8 text"));
    return refused(source, lineOf(reader.fault().offset), reader.fault().reason);
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
