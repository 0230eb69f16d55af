#pragma once

#include <QString>

#include <array>

/// The kinds of a diet day, as indices 0 to 2. A day has at most one kind.
namespace kesto::DayKinds
{

inline constexpr int count = 3;

/// The names of the DietDay attributes, by kind.
[[nodiscard]] const std::array<QString, count> &keys();
[[nodiscard]] QString title(int kind);
[[nodiscard]] QString image(int kind);
/// The number of kinds, from the first on, that a phase offers.
[[nodiscard]] int offeredIn(int period);

} // namespace kesto::DayKinds
