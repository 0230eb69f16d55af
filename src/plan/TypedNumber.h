#pragma once

#include <QString>

#include <optional>

namespace kesto
{

/// The number that a typed text begins with, after white space; 0 when it begins with none. A comma counts as a point.
/// A number out of range becomes the nearest in range.
[[nodiscard]] float floatValue(const QString &text);

/// The whole number that a typed text begins with; nothing when it begins with none. Likewise limited.
[[nodiscard]] std::optional<int> wholeNumber(const QString &text);

/// The same, 0 when the text begins with none.
[[nodiscard]] int integerValue(const QString &text);

} // namespace kesto
