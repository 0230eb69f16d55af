#include "platform/Utf8.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace kesto
{

namespace
{

constexpr char32_t noCharacter = 0xffffffff;

// The character at `from`, which moves behind it. Stays there when there is none: a stray or missing continuation, an
// overlong form, a surrogate, a code beyond the last, zero.
char32_t decodeOne(const char *&from, const char *end)
{
    const auto byte = [&](int i) { return static_cast<uint8_t>(from[i]); };
    const uint8_t lead = byte(0);
    if (lead < 0x80) {
        if (lead == 0)
            return noCharacter;
        ++from;
        return lead;
    }
    const int length = lead < 0xc2 ? 0 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : lead < 0xf5 ? 4 : 0;
    if (length == 0 || end - from < length)
        return noCharacter;
    char32_t code = lead & (0xffu >> (length + 1));
    for (int i = 1; i < length; ++i) {
        if ((byte(i) & 0xc0) != 0x80)
            return noCharacter;
        code = code << 6 | (byte(i) & 0x3fu);
    }
    const char32_t least = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
    if (code < least || code > 0x10ffff || (code >= 0xd800 && code < 0xe000))
        return noCharacter;
    from += length;
    return code;
}

bool endsCharacterData(char c) { return c == '<' || c == '&' || c == '\r'; }

// Eight bytes at once, the first in the lowest bits.
using Block = uint64_t;

constexpr Block everyByte(uint8_t byte) { return Block(0x0101010101010101) * byte; }
constexpr Block everyUnit(uint16_t unit) { return Block(0x0001000100010001) * unit; }

Block load(const char *from)
{
    Block block = 0;
    std::memcpy(&block, from, sizeof block);
    return block;
}

// How many groups of bits come before the first that is set in one, of a block without the highest bit. With that bit
// set there is no case of its own for zero, for which compilers branch.
size_t countGroupsBefore(Block flags, size_t bits)
{
    return (static_cast<size_t>(std::countr_zero(flags | Block(1) << 63)) + 1) / bits;
}

// Vectors as compilers for all our processors know them.
using Bytes [[gnu::vector_size(16)]] = uint8_t;
using Pairs [[gnu::vector_size(16)]] = uint16_t;
using Units [[gnu::vector_size(32)]] = uint16_t;

// The number of characters of two bytes from U+0400 on, Cyrillic letters above all, that sixteen bytes begin with.
// Writes eight units, of which only those count. None of that range is overlong.
size_t decodePairs(const char *from, char16_t *to)
{
    Pairs pairs{};
    std::memcpy(&pairs, from, sizeof pairs);
    pairs = (pairs & 0x1f) << 6 | (pairs >> 8 & 0x3f);
    std::memcpy(to, &pairs, sizeof pairs);
    const auto findOthers = [](Block block) { return (block & everyUnit(0xc0f0)) ^ everyUnit(0x80d0); };
    const size_t inFirst = countGroupsBefore(findOthers(load(from)) >> 4, 16);
    const size_t inSecond = countGroupsBefore(findOthers(load(from + sizeof(Block))) >> 4, 16);
    return inFirst + (inSecond & -(inFirst >> 2)); // the second's if there are four; no branch
}

// Which of eight bytes are no ASCII letters, or may end the text, or are other control characters: they set the high
// bit of a byte of the result, the first of them exactly.
Block findOthers(Block block)
{
    // A subtraction borrows from the high bit of each byte that is too small. It may wrongly do so above the first
    // such.
    const Block below = block - everyByte('\r' + 1);
    const Block less = (block ^ everyByte('<')) - everyByte(1);
    const Block ampersand = (block ^ everyByte('&')) - everyByte(1);
    return (block | below | less | ampersand) & everyByte(0x80);
}

// The number of ASCII letters that sixteen bytes begin with. Writes sixteen units, of which only those count.
size_t widenAscii(const char *from, char16_t *to)
{
    Bytes bytes{};
    std::memcpy(&bytes, from, sizeof bytes);
    const Units units = __builtin_convertvector(bytes, Units);
    std::memcpy(to, &units, sizeof units);
    const Block first = findOthers(load(from));
    const Block second = findOthers(load(from + sizeof(Block)));
    const size_t inFirst = countGroupsBefore(first >> 7, 8);
    const size_t inSecond = countGroupsBefore(second >> 7, 8);
    return inFirst + (inSecond & -(inFirst >> 3));
}

bool isAscii(char c) { return static_cast<uint8_t>(c) < 0x80; }

} // namespace

ptrdiff_t firstByteOutsideUtf8(std::string_view bytes)
{
    const char *at = bytes.data();
    const char *const end = at + bytes.size();
    while (at != end) {
        if (decodeOne(at, end) == noCharacter)
            return at - bytes.data();
    }
    return -1;
}

char16_t *encodeUtf16(char32_t character, char16_t *to)
{
    if (character < 0x10000) {
        *to++ = static_cast<char16_t>(character);
        return to;
    }
    *to++ = static_cast<char16_t>(0xd7c0 + (character >> 10));
    *to++ = static_cast<char16_t>(0xdc00 + (character & 0x3ff));
    return to;
}

char16_t *decodeCharacterData(const char *&from, const char *end, char16_t *to)
{
    const char *at = from;
    for (;;) {
        // Whole words, with no branch that depends on their lengths: mispredictions would take longer than all the
        // rest.
        if constexpr (std::endian::native == std::endian::little) {
            while (end - at > ptrdiff_t(4 * sizeof(Block))) {
                const char *const start = at;
                if (!isAscii(*at)) {
                    const size_t pairs = decodePairs(at, to);
                    at += 2 * pairs;
                    to += pairs;
                    if (*at == ' ' && !isAscii(at[1])) { // mostly, and soonest known
                        *to++ = u' ';
                        ++at;
                        continue;
                    }
                }
                if (*at == '<')
                    break;
                const size_t letters = widenAscii(at, to);
                at += letters;
                to += letters;
                if (at == start || *at == '<')
                    break;
            }
        }
        if (at == end || endsCharacterData(*at))
            break;
        const char32_t character = decodeOne(at, end);
        if (character == noCharacter)
            break;
        to = encodeUtf16(character, to);
    }
    from = at;
    return to;
}

} // namespace kesto
