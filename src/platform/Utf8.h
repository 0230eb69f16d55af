#pragma once

#include <cstddef>
#include <string_view>

namespace kesto
{

/// Where the first byte is that belongs to no character, -1 when all do. A zero byte belongs to none: texts in UTF-16
/// are told by it.
[[nodiscard]] ptrdiff_t firstByteOutsideUtf8(std::string_view bytes);

/// Decodes the characters of a text between XML markup. Moves `from` to the first '<', '&' or carriage return, or to
/// the first byte that belongs to no character, or to the end. There must be room for a unit a byte. Returns the end of
/// what was written.
[[nodiscard]] char16_t *decodeCharacterData(const char *&from, const char *end, char16_t *to);

/// Writes the one or two units of a character. Returns their end.
[[nodiscard]] char16_t *encodeUtf16(char32_t character, char16_t *to);

} // namespace kesto
