#pragma once

#include <QByteArray>
#include <QString>

#include <cstring>
#include <memory>
#include <string_view>

namespace kesto
{

/// Goes once over the XML of a property list, from tag to tag. What it gives refers to the bytes. A fault ends the
/// scan.
///
/// This is no general reader: attributes are checked and left out, a DOCTYPE can't declare anything. The tree of a
/// general one costs as much again as the values that are made from it: reading through one took four times as long as
/// building that tree, this takes less than twice as long.
class PropertyListScanner
{
public:
    struct Fault
    {
        QString reason;
        ptrdiff_t offset = 0;
    };

    struct Item
    {
        std::string_view name; // the element's
        std::string_view text; // what stands where only elements may
        ptrdiff_t offset = 0;
        bool selfClosing = false;
    };

    enum class Found {
        Element,
        Text,
        End, // of the parent
        Fault
    };

    explicit PropertyListScanner(std::string_view bytes);

    /// What comes next in an element, past blanks, comments and instructions; no name means outside of the root.
    [[nodiscard]] Found next(std::string_view parent, Item &item);

    /// The text of an element whose start tag was found; goes behind its end tag. It stays until the next call.
    [[nodiscard]] bool readText(const Item &element, QStringView &text);

    /// The same without decoding, for texts that are mostly ASCII or known already. They may be no UTF-8.
    [[nodiscard]] bool readBytes(const Item &element, std::string_view &text);

    /// Always false.
    bool fails(ptrdiff_t offset, QString reason);

    [[nodiscard]] const Fault &fault() const { return fault_; }

private:
    bool failsAt(const char *at, QString reason) { return fails(at - begin_, std::move(reason)); }
    bool ends(std::string_view within);
    template <size_t size>
    [[nodiscard]] bool follows(const char (&literal)[size]) const
    {
        return static_cast<size_t>(end_ - at_) >= size - 1 && std::memcmp(at_, literal, size - 1) == 0;
    }
    [[nodiscard]] const char *find(std::string_view text) const;

    bool readStartTag(Item &item);
    bool readEndTag(std::string_view name);
    bool skipAttribute(std::string_view element);
    bool skipMarkup();
    bool skipUntil(std::string_view closing, std::string_view within);
    bool skipDocumentType();
    void skipBlanks();

    bool decodeContent(const Item &element);
    bool decodeUntil(const char *stop, bool literal);
    bool decodeReference(const char *stop);

    const char *const begin_;
    const char *const end_;
    const char *at_;
    // Room for the text of all bytes; the pages that are not written to cost nothing.
    const std::unique_ptr<char16_t[]> decoded_;
    char16_t *decodedEnd_;
    QByteArray joined_;
    bool documentTypeAllowed_ = true;
    Fault fault_;
};

} // namespace kesto
