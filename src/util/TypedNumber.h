#pragma once

#include <QString>

#include <optional>

namespace kesto
{

/// The number at the beginning of a typed text, after white space; 0 without one. A comma counts as a decimal point. A
/// number out of range is clamped.
[[nodiscard]] float floatValue(const QString &text);

/// The whole number at the beginning of a typed text, after white space; nothing without one. Clamped, too.
[[nodiscard]] std::optional<int> wholeNumber(const QString &text);

/// The same, with 0 when there is none.
[[nodiscard]] int integerValue(const QString &text);

} // namespace kesto
