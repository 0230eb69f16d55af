#pragma once

#include "platform/LocalNotifications.h"

#include <optional>

namespace kesto
{

class TimeRow;

/// When the reminder of a row of a day fires: the hour and the minute of its time, the minute in single precision and
/// one more to make up for what it loses. A time that the clocks skip that night becomes the first instant that exists,
/// of one that they show twice the first is meant. Nothing for a row that belongs to no day.
[[nodiscard]] std::optional<QDateTime> reminderFireDate(const TimeRow &row);

/// What the system is asked to show: the texts of the row's items, at fireDate.
[[nodiscard]] LocalNotification reminderNotification(const TimeRow &row, const QDateTime &fireDate);

/// Takes the row's notification back, also one that was set before the row's time changed. What the row says of its
/// reminder stays.
void cancelReminder(const TimeRow &row);

} // namespace kesto
