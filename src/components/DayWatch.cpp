#include "components/DayWatch.h"

#include "platform/Clock.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace kesto
{

namespace
{
// The clock may be set, and a device that sleeps stops its timers: no wait is longer than this.
constexpr std::chrono::milliseconds longestWait = std::chrono::minutes(10);
} // namespace

DayWatch &DayWatch::sharedWatch() { return Platform::current().shared<DayWatch>(); }

DayWatch::DayWatch(Platform &platform)
    : platform_(platform)
    , day_(today())
{
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &DayWatch::look);
    connect(&platform.shared<NotificationCenter>(), &NotificationCenter::posted, this, [this](const QString &name) {
        if (name != Platform::calendarDidChangeNotification)
            return;
        day_ = today();
        armTimer();
        Q_EMIT dayChanged();
    });
    armTimer();
}

QDate DayWatch::today() const { return platform_.calendar().dayOf(platform_.clock().now()); }

void DayWatch::armTimer()
{
    const QDateTime midnight = platform_.calendar().startOfDay(today().addDays(1));
    const std::chrono::milliseconds wait(platform_.clock().now().msecsTo(midnight));
    timer_.start(std::min(wait, longestWait));
}

void DayWatch::look()
{
    const QDate day = today();
    armTimer();
    if (std::exchange(day_, day) != day)
        Q_EMIT dayChanged();
}

} // namespace kesto
