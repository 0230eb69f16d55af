#pragma once

#include <QDate>
#include <QObject>
#include <QTimer>

namespace kesto
{

class Platform;

/// Tells when another day has begun by the platform's clock and calendar, or when the calendar has become another one,
/// for screens that show days.
class DayWatch : public QObject
{
    Q_OBJECT
public:
    static DayWatch &sharedWatch();
    explicit DayWatch(Platform &platform);

    /// Looks at the clock now rather than when it is time, as after a sleep in which no timer ran.
    void look();

Q_SIGNALS:
    void dayChanged();

private:
    [[nodiscard]] QDate today() const;
    void armTimer();

    Platform &platform_;
    QDate day_;
    QTimer timer_;
};

} // namespace kesto
