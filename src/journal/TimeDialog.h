#pragma once

#include <QTime>

#include <functional>

class QObject;
class QString;

namespace kesto
{

class JornalDay;
class TimeRow;

/// Asks for a time of day in steps of 5 minutes. picked gets it as the journal stores it, unless the user cancels or
/// context is gone.
void askForTime(const QString &title, const QString &button, QTime preset, QObject *context,
                const std::function<void(float time)> &picked);

/// The row of a day at exactly this time, or null. Times are compared in single precision, as they are stored.
[[nodiscard]] TimeRow *rowAtTime(const JornalDay &day, float time);

/// Tells the user, when the dialog is gone, that the day has a row at the time that was picked. Not when context is
/// gone.
void refuseSameTime(QObject *context);

} // namespace kesto
