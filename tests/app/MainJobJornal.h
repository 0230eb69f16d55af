#pragma once

#include <QStringList>

namespace kesto::test
{

class Person;

/// In the journal of the day of the main job, which is in sight: fills the day, ticks two rows, sets a reminder, logs
/// water and three foods, starts the timer.
void keepJournal(const Person &user);

/// What the store, the settings and the notifications hold of that: a line for each row, record, notification, and for
/// the timer.
[[nodiscard]] QStringList journalOfToday();

} // namespace kesto::test
