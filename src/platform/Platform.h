#pragma once

#include "platform/Calendar.h"
#include "platform/UrlOpener.h"

#include <QString>

#include <memory>
#include <mutex>
#include <typeindex>
#include <unordered_map>
#include <vector>

namespace kesto
{

class Clock;
class CloudKeyValueStore;
class LocalNotifications;
class RandomSource;
class StringTables;
class UserDefaults;

/// Everything that comes from outside the program. main.cpp builds the real one; a test builds its own with a fake
/// clock and a temporary folder. The services are not owned; they outlive the platform.
class Platform
{
public:
    struct Services
    {
        QString documentsFolder;  ///< absolute path of the folder that holds the user's files; exists
        QString resourcesFolder;  ///< absolute path of the shipped resources
        QString picturesFolder{}; ///< where the user keeps pictures; need not exist; empty where there is no such place
        QString version;          ///< the application's version, "CFBundleVersion"
        UserDefaults *userDefaults = nullptr;
        StringTables *strings = nullptr;
        LocalNotifications *notifications = nullptr;
        Clock *clock = nullptr;
        RandomSource *random = nullptr;
        CloudKeyValueStore *cloudStore = nullptr; ///< null where the platform has no cloud
        Calendar calendar;                        ///< at the start; see setCalendar()
        UrlOpener urlOpener{};                    ///< none where the system opens no addresses
    };

    /// Posted through the NotificationCenter. Screens that show days follow DayWatch, which hears of it.
    static inline const QString calendarDidChangeNotification = QStringLiteral("calendarDidChange");

    /// Becomes current() until it is destroyed. Only one exists at a time.
    explicit Platform(Services services);
    ~Platform();
    Platform(const Platform &) = delete;
    Platform &operator=(const Platform &) = delete;

    /// The one platform of the process; asking before there is one is a programmer's error.
    static Platform &current();

    [[nodiscard]] const QString &documentsFolder() const { return services_.documentsFolder; }
    [[nodiscard]] const QString &resourcesFolder() const { return services_.resourcesFolder; }
    [[nodiscard]] const QString &picturesFolder() const { return services_.picturesFolder; }
    [[nodiscard]] const QString &version() const { return services_.version; }
    [[nodiscard]] UserDefaults &userDefaults() const { return *services_.userDefaults; }
    [[nodiscard]] StringTables &strings() const { return *services_.strings; }
    [[nodiscard]] LocalNotifications &notifications() const { return *services_.notifications; }
    [[nodiscard]] Clock &clock() const { return *services_.clock; }
    [[nodiscard]] RandomSource &random() const { return *services_.random; }
    [[nodiscard]] CloudKeyValueStore *cloudStore() const { return services_.cloudStore; }
    /// The user's current calendar: time zone and first weekday. It changes when the event loop turns; main thread
    /// only.
    [[nodiscard]] const Calendar &calendar() const { return services_.calendar; }
    /// Posts calendarDidChangeNotification when the calendar is another one.
    void setCalendar(const Calendar &calendar);
    /// False when the system has nothing to open the address with.
    bool openUrl(const QUrl &url) const { return services_.urlOpener && services_.urlOpener(url); }

    /// The one T of this platform, made by T(Platform &) on the first call, thread-safely and exactly once, and
    /// destroyed with the platform, the last made first. The sharedManager() operations stand on it.
    template <class T>
    T &shared()
    {
        const std::lock_guard lock(sharedMutex_);
        auto found = shared_.find(typeid(T));
        if (found == shared_.end()) {
            auto made = std::make_shared<T>(*this);
            madeInOrder_.push_back(made);
            found = shared_.emplace(typeid(T), made.get()).first;
        }
        return *static_cast<T *>(found->second);
    }

private:
    Services services_;
    std::recursive_mutex sharedMutex_; // recursive: making one manager may ask for another
    std::unordered_map<std::type_index, void *> shared_;
    std::vector<std::shared_ptr<void>> madeInOrder_;
};

} // namespace kesto
