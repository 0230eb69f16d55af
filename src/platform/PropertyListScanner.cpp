#include "platform/PropertyListScanner.h"

#include "platform/Utf8.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <utility>

namespace kesto
{

namespace
{

using namespace std::string_view_literals;

constexpr char cdataOpening[] = "<![CDATA[";

bool isBlank(char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; }

bool endsName(char c) { return c == '>' || c == '/' || c == '<' || c == '=' || isBlank(c); }

// Eight bytes at once. What a tag takes decides on the time of the whole: there are two for each short text, and calls
// of memcmp() for their few bytes are a quarter of it.
uint64_t load(const char *from)
{
    uint64_t block = 0;
    std::memcpy(&block, from, sizeof block);
    return block;
}

constexpr ptrdiff_t blockSize = sizeof(uint64_t);

// The length of the name that is one of few small letters, else eight.
size_t countSmallLetters(const char *from)
{
    size_t count = 0;
    if constexpr (std::endian::native == std::endian::little) {
        const uint64_t others = (load(from) & 0xe0e0e0e0e0e0e0e0) ^ 0x6060606060606060;
        count = static_cast<size_t>(std::countr_zero(others)) / 8;
    } else {
        while (count < blockSize && (from[count] & 0xe0) == 0x60)
            ++count;
    }
    return count;
}

// Whether up to eight bytes are the same; eight must be there to read.
bool sameStart(const char *left, const char *right, size_t size)
{
    if constexpr (std::endian::native == std::endian::little)
        return size == 0 || (load(left) ^ load(right)) << (8 * (blockSize - size)) == 0;
    else
        return std::memcmp(left, right, size) == 0;
}

QString quoted(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(std::min<size_t>(text.size(), 200))).left(40);
}

} // namespace

PropertyListScanner::PropertyListScanner(std::string_view bytes)
    : begin_(bytes.data())
    , end_(begin_ + bytes.size())
    , at_(bytes.starts_with("\xef\xbb\xbf") ? begin_ + 3 : begin_)
    , decoded_(std::make_unique_for_overwrite<char16_t[]>(bytes.size()))
    , decodedEnd_(decoded_.get())
{
}

bool PropertyListScanner::fails(ptrdiff_t offset, QString reason)
{
    fault_ = {std::move(reason), offset};
    return false;
}

bool PropertyListScanner::ends(std::string_view within)
{
    return failsAt(end_, QStringLiteral("the text ends inside %1").arg(quoted(within)));
}

const char *PropertyListScanner::find(std::string_view text) const
{
    const size_t position = std::string_view(at_, static_cast<size_t>(end_ - at_)).find(text);
    return position == std::string_view::npos ? nullptr : at_ + position;
}

void PropertyListScanner::skipBlanks()
{
    const char *at = at_;
    while (at != end_ && isBlank(*at))
        ++at;
    at_ = at;
}

PropertyListScanner::Found PropertyListScanner::next(std::string_view parent, Item &item)
{
    const char *run = at_;
    for (;;) {
        skipBlanks();
        item.offset = run - begin_;
        if (at_ == end_) {
            item.offset = at_ - begin_;
            if (parent.empty())
                return Found::End;
            ends(parent);
            return Found::Fault;
        }
        if (*at_ != '<' || follows(cdataOpening)) {
            const char *end = std::find(at_ + 1, end_, '<');
            while (isBlank(end[-1]))
                --end;
            item.text = {at_, static_cast<size_t>(end - at_)};
            return Found::Text;
        }
        item.offset = at_ - begin_;
        switch (at_ + 1 == end_ ? '\0' : at_[1]) {
        case '/':
            return readEndTag(parent) ? Found::End : Found::Fault;
        case '!':
        case '?':
            if (!skipMarkup())
                return Found::Fault;
            run = at_;
            break;
        default:
            return readStartTag(item) ? Found::Element : Found::Fault;
        }
    }
}

bool PropertyListScanner::readStartTag(Item &item)
{
    const char *const name = ++at_;
    documentTypeAllowed_ = false;
    if (end_ - name > blockSize) {
        const size_t length = countSmallLetters(name);
        if (length > 0 && name[length] == '>') {
            item.name = {name, length};
            item.selfClosing = false;
            at_ = name + length + 1;
            return true;
        }
    }
    const char *nameEnd = name;
    while (nameEnd != end_ && !endsName(*nameEnd))
        ++nameEnd;
    item.name = {name, static_cast<size_t>(nameEnd - name)};
    at_ = nameEnd;
    for (;;) {
        const bool apart = at_ != end_ && isBlank(*at_);
        skipBlanks();
        if (at_ == end_)
            return ends("a tag");
        item.selfClosing = follows("/>");
        if (item.selfClosing || *at_ == '>') {
            at_ += item.selfClosing ? 2 : 1;
            return !item.name.empty() || failsAt(name, QStringLiteral("a tag without a name"));
        }
        if (!apart)
            return failsAt(at_, QStringLiteral("a wrong tag: %1").arg(quoted(item.name)));
        if (!skipAttribute(item.name))
            return false;
    }
}

bool PropertyListScanner::skipAttribute(std::string_view element)
{
    const char *const start = at_;
    while (at_ != end_ && !endsName(*at_))
        ++at_;
    const bool named = at_ != start;
    if (firstByteOutsideUtf8({start, static_cast<size_t>(at_ - start)}) >= 0)
        return failsAt(start, QStringLiteral("not UTF-8 text"));
    skipBlanks();
    const bool assigned = named && at_ != end_ && *at_ == '=';
    if (assigned)
        ++at_;
    skipBlanks();
    if (at_ == end_)
        return ends("a tag");
    if (!assigned || (*at_ != '"' && *at_ != '\''))
        return failsAt(start, QStringLiteral("a wrong attribute of %1").arg(quoted(element)));
    const char *const closing = std::find(at_ + 1, end_, *at_);
    if (closing == end_)
        return ends("an attribute");
    ++at_;
    decodedEnd_ = decoded_.get();
    if (!decodeUntil(closing, false))
        return false;
    if (at_ != closing)
        return failsAt(at_, QStringLiteral("a wrong attribute of %1").arg(quoted(element)));
    ++at_;
    return true;
}

bool PropertyListScanner::readEndTag(std::string_view name)
{
    const char *const start = at_;
    at_ += 2;
    const auto size = static_cast<ptrdiff_t>(name.size());
    // Each name stands before its end tag, so that eight bytes are there to read.
    const bool known = size <= blockSize && end_ - at_ > blockSize
                           ? sameStart(at_, name.data(), name.size())
                           : std::string_view(at_, static_cast<size_t>(end_ - at_)).starts_with(name);
    if (known && size != 0) {
        at_ += size;
        if (at_ == end_ || *at_ != '>')
            skipBlanks();
        if (at_ != end_ && *at_ == '>') {
            ++at_;
            return true;
        }
    }
    if (std::find(at_, end_, '>') == end_)
        return ends("a tag");
    return failsAt(start, QStringLiteral("Start-end tags mismatch"));
}

// Comments and instructions anywhere, a document type before the root.
bool PropertyListScanner::skipMarkup()
{
    if (follows("<!--")) {
        at_ += 4;
        return skipUntil("-->", "a comment");
    }
    if (follows("<?")) {
        at_ += 2;
        return skipUntil("?>", "an instruction");
    }
    if (documentTypeAllowed_ && follows("<!DOCTYPE"))
        return skipDocumentType();
    return failsAt(at_, QStringLiteral("no tag of a property list: %1")
                            .arg(quoted({at_, static_cast<size_t>(std::find(at_, end_, '>') - at_)})));
}

bool PropertyListScanner::skipUntil(std::string_view closing, std::string_view within)
{
    const char *const end = find(closing);
    if (end == nullptr)
        return ends(within);
    if (firstByteOutsideUtf8({at_, static_cast<size_t>(end - at_)}) >= 0)
        return failsAt(at_, QStringLiteral("not UTF-8 text"));
    at_ = end + closing.size();
    return true;
}

bool PropertyListScanner::skipDocumentType()
{
    const char *const start = at_;
    documentTypeAllowed_ = false;
    while (at_ != end_ && *at_ != '>') {
        if (*at_ == '[' || (*at_ == '<' && at_ != start))
            return failsAt(at_, QStringLiteral("a document type with declarations"));
        if (*at_ == '"' || *at_ == '\'')
            at_ = std::find(at_ + 1, end_, *at_);
        if (at_ != end_)
            ++at_;
    }
    if (at_ == end_)
        return ends("the document type");
    if (firstByteOutsideUtf8({start, static_cast<size_t>(at_ - start)}) >= 0)
        return failsAt(start, QStringLiteral("not UTF-8 text"));
    ++at_;
    return true;
}

bool PropertyListScanner::readText(const Item &element, QStringView &text)
{
    decodedEnd_ = decoded_.get();
    if (!element.selfClosing && !decodeContent(element))
        return false;
    text = QStringView(decoded_.get(), decodedEnd_);
    return true;
}

bool PropertyListScanner::readBytes(const Item &element, std::string_view &text)
{
    text = {};
    if (element.selfClosing)
        return true;
    const char *const start = at_;
    const char *const end = std::find(start, end_, '<');
    const std::string_view plain(start, static_cast<size_t>(end - start));
    if (end_ - end > 1 && end[1] == '/' && plain.find('&') == plain.npos && plain.find('\r') == plain.npos) {
        text = plain;
        at_ = end;
        return readEndTag(element.name);
    }
    QStringView decoded;
    if (!readText(element, decoded))
        return false;
    joined_ = decoded.toUtf8();
    text = {joined_.constData(), static_cast<size_t>(joined_.size())};
    return true;
}

bool PropertyListScanner::decodeContent(const Item &element)
{
    for (;;) {
        decodedEnd_ = decodeCharacterData(at_, end_, decodedEnd_);
        if (follows("</"))
            return readEndTag(element.name);
        if (!decodeUntil(end_, false))
            return false;
        if (at_ == end_)
            return ends(element.name);
        if (follows("</"))
            return readEndTag(element.name);
        if (follows(cdataOpening)) {
            at_ += sizeof cdataOpening - 1;
            const char *const closing = find("]]>");
            if (closing == nullptr)
                return ends("a CDATA section");
            if (!decodeUntil(closing, true))
                return false;
            at_ = closing + 3;
        } else if (follows("<!") || follows("<?")) {
            if (!skipMarkup())
                return false;
        } else {
            return failsAt(at_, QStringLiteral("an element inside %1").arg(quoted(element.name)));
        }
    }
}

// Up to the next '<' or to `stop`; in a CDATA section '<' and '&' are letters.
bool PropertyListScanner::decodeUntil(const char *stop, bool literal)
{
    for (;;) {
        decodedEnd_ = decodeCharacterData(at_, stop, decodedEnd_);
        if (at_ == stop || (*at_ == '<' && !literal))
            return true;
        if (*at_ == '\r') { // with or without a line feed, a line end
            ++at_;
            if (at_ == stop || *at_ != '\n')
                *decodedEnd_++ = u'\n';
        } else if (literal && (*at_ == '<' || *at_ == '&')) {
            *decodedEnd_++ = static_cast<char16_t>(*at_++);
        } else if (*at_ == '&') {
            if (!decodeReference(stop))
                return false;
        } else {
            return failsAt(at_, QStringLiteral("not UTF-8 text"));
        }
    }
}

bool PropertyListScanner::decodeReference(const char *stop)
{
    constexpr std::pair<std::string_view, char> named[] = {
        {"lt"sv, '<'}, {"gt"sv, '>'}, {"amp"sv, '&'}, {"quot"sv, '"'}, {"apos"sv, '\''}};
    const char *const start = at_ + 1;
    const char *const end = std::find(start, stop, ';');
    const std::string_view name(start, static_cast<size_t>(end - start));
    char32_t character = 0;
    if (name.starts_with('#')) {
        // Zero would cut a text off, half a surrogate pair spoil it.
        const bool hexadecimal = name.starts_with("#x");
        const char *const digits = start + (hexadecimal ? 2 : 1);
        uint32_t code = 0;
        const auto [last, error] = std::from_chars(digits, end, code, hexadecimal ? 16 : 10);
        if (error == std::errc() && last == end && code <= 0x10ffff && (code < 0xd800 || code >= 0xe000))
            character = code;
    } else {
        for (const auto &[known, meant] : named) {
            if (name == known)
                character = static_cast<char32_t>(meant);
        }
    }
    if (character == 0 || end == stop)
        return failsAt(at_, QStringLiteral("a reference to no character: &%1").arg(quoted(name)));
    decodedEnd_ = encodeUtf16(character, decodedEnd_);
    at_ = end + 1;
    return true;
}

} // namespace kesto
