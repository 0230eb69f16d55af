#include "platform/Platform.h"

#include "platform/NotificationCenter.h"

#include <QtGlobal>

#include <atomic>
#include <utility>

namespace kesto
{

namespace
{
std::atomic<Platform *> currentPlatform = nullptr;
}

Platform::Platform(Services services)
    : services_(std::move(services))
{
    Platform *none = nullptr;
    if (!currentPlatform.compare_exchange_strong(none, this))
        qFatal("There is a platform already");
    Q_ASSERT(services_.userDefaults && services_.strings && services_.notifications && services_.clock &&
             services_.random);
}

Platform::~Platform()
{
    // One at a time, while this is still the current platform: a manager may use the earlier ones until its end.
    while (!madeInOrder_.empty()) {
        const std::shared_ptr<void> last = std::move(madeInOrder_.back());
        madeInOrder_.pop_back();
    }
    currentPlatform = nullptr;
}

void Platform::setCalendar(const Calendar &calendar)
{
    if (std::exchange(services_.calendar, calendar) != calendar)
        shared<NotificationCenter>().post(calendarDidChangeNotification);
}

Platform &Platform::current()
{
    Platform *platform = currentPlatform;
    if (!platform)
        qFatal("There is no platform yet");
    return *platform;
}

} // namespace kesto
