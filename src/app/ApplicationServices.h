#pragma once

#include "platform/Clock.h"
#include "platform/RandomSource.h"

#include <QLockFile>
#include <QString>

#include <memory>

namespace kesto
{

class DesktopNotificationPresenter;
class LocalNotificationCenter;
class Platform;
class StringTables;
class UserDefaults;

/// The real services under the program, over one data folder that no other process may use meanwhile.
class ApplicationServices
{
public:
    struct Options
    {
        QString dataFolder;      ///< made, for the user's eyes only, when it is not there
        QString resourcesFolder; ///< as laid out beside the program
        QString version;
        QString language;       ///< "ru" or "en"; empty: as the user chose in the program, else as the system says
        Clock *clock = nullptr; ///< outlives the services; null: the system's
        RandomSource *random = nullptr; ///< the same
    };

    /// Null when the folder can't be used; error then holds a sentence for the user.
    [[nodiscard]] static std::unique_ptr<ApplicationServices> open(const Options &options, QString *error);
    ~ApplicationServices();
    ApplicationServices(const ApplicationServices &) = delete;
    ApplicationServices &operator=(const ApplicationServices &) = delete;

    [[nodiscard]] Platform &platform() { return *platform_; }
    [[nodiscard]] LocalNotificationCenter &notifications() { return *notifications_; }

    /// Whether a folder that was to be opened is one that can be written.
    [[nodiscard]] static bool canKeepData(const QString &folder);
    /// The platform's folder for the data of this program.
    [[nodiscard]] static QString defaultDataFolder();
    /// Where the resources lie, seen from the program's own file.
    [[nodiscard]] static QString resourcesFolderBeside(const QString &applicationFolder);

private:
    explicit ApplicationServices(const QString &dataFolder);

    QLockFile lock_;
    SystemClock systemClock_;
    SystemRandomSource systemRandom_;
    std::unique_ptr<UserDefaults> userDefaults_;
    std::unique_ptr<StringTables> strings_;
    std::unique_ptr<DesktopNotificationPresenter> presenter_;
    std::unique_ptr<LocalNotificationCenter> notifications_;
    std::unique_ptr<Platform> platform_;
};

} // namespace kesto
