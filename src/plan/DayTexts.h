#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace kesto
{

/// Day and month in the language of the interface.
[[nodiscard]] QString dayTitle(const QDateTime &date);
/// A weight in the user's units, or a dash for none.
[[nodiscard]] QString weightText(const std::optional<float> &kilograms, bool metrickSystem, const QString &unit);

} // namespace kesto
