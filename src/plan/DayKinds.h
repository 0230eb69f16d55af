#pragma once

#include <QString>

#include <array>

/// The kinds that a day of the diet may have, of which at most one is set; told by their place among them.
namespace kesto::DayKinds
{

inline constexpr int count = 3;

/// Their attributes of a day.
[[nodiscard]] const std::array<QString, count> &keys();
[[nodiscard]] QString title(int kind);
[[nodiscard]] QString image(int kind);
/// How many of them, from the first on, a day of a phase may have.
[[nodiscard]] int offeredIn(int period);

} // namespace kesto::DayKinds
