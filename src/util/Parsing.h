#pragma once

#include <QString>
#include <QStringList>

namespace kesto
{

/// Operations on a text by marker strings. An empty marker occurs nowhere. Those that say so throw std::out_of_range.

/// What follows the first beginString, up to the second or the end. Throws when beginString does not occur.
[[nodiscard]] QString stringBySubtractingWithBeginString(const QString &text, const QString &beginString);
/// What comes before the first endString; the whole text when it does not occur.
[[nodiscard]] QString stringBySubtractingWithEndString(const QString &text, const QString &endString);
/// What follows the first beginString, up to the first endString after it and never past a second beginString. Throws
/// when beginString does not occur.
[[nodiscard]] QString stringBySubtractingWithBeginString(const QString &text, const QString &beginString,
                                                         const QString &endString);
/// The text without any occurrence of a string.
[[nodiscard]] QString stringByRemovingString(const QString &text, const QString &string);
/// The text without any occurrence of the last string of the list. The others have no effect.
[[nodiscard]] QString stringByRemovingStringsFromArray(const QString &text, const QStringList &strings);
/// The text without its leading spaces; other white space stays. An empty text is returned; throws when there are
/// spaces and nothing else.
[[nodiscard]] QString stringByRemovingWhiteSpaceInBegining(const QString &text);

} // namespace kesto
