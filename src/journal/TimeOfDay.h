#pragma once

#include <QString>
#include <QTime>

namespace kesto
{

/// A time of day as the journal stores it: hours.minutes in single precision, the two digits after the point being
/// minutes, so that 7:05 is 7.05 and 18:30 is 18.3. All of them are read from such a text: two times are equal exactly
/// when their numbers are.

[[nodiscard]] float timeOfDay(QTime time);
/// The time that a number stands for, to the nearest minute; what is out of range becomes the nearest time of the day.
[[nodiscard]] QTime clockTime(float timeOfDay);
/// "%0.2f" with a colon: 9:00, 18:30.
[[nodiscard]] QString timeText(float timeOfDay);

} // namespace kesto
