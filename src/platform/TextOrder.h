#pragma once

#include <QStringView>

namespace kesto
{

/// Compares texts code point by code point: negative, zero or positive. It is the order of their UTF-8 bytes, too.
/// QString's own comparison goes by UTF-16 units and sorts U+10000 and above before U+E000.
[[nodiscard]] int compareLiterally(QStringView left, QStringView right);

/// The same without regard to case.
[[nodiscard]] int compareCaseInsensitively(const QString &left, const QString &right);

/// Whether a text holds what a user searches for: without regard to case, and with ё and е as one letter, because most
/// people type only the second.
[[nodiscard]] bool matchesSearch(const QString &text, const QString &wanted);

} // namespace kesto
