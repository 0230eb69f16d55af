#include "app/ApplicationServices.h"

#include "platform/AtomicFile.h"
#include "platform/DesktopNotificationPresenter.h"
#include "platform/LocalNotificationCenter.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

namespace kesto
{

namespace
{

const QString applicationName = QStringLiteral("kesto");

QString preferredLanguage(const QString &asked, const UserDefaults &defaults)
{
    if (!asked.isEmpty())
        return asked;
    const QStringList chosen = defaults.stringArrayForKey(QStringLiteral("AppleLanguages"));
    return chosen.isEmpty() ? QLocale::system().name() : chosen.constFirst();
}

} // namespace

ApplicationServices::ApplicationServices(const QString &dataFolder)
    : lock_(dataFolder + QStringLiteral("/lock"))
{
    lock_.setStaleLockTime(0); // only the end of its process frees a lock
}

// The platform goes first, then what it stands on.
ApplicationServices::~ApplicationServices() = default;

std::unique_ptr<ApplicationServices> ApplicationServices::open(const Options &options, QString *error)
{
    const QString folder = QDir::cleanPath(QFileInfo(options.dataFolder).absoluteFilePath());
    const QString documents = folder + QStringLiteral("/Documents");
    if (const Result<void> made = makePrivateFolder(documents); !made) {
        *error = QStringLiteral("The data folder %1 can't be made: %2.").arg(folder, made.error().reason);
        return nullptr;
    }
    if (!QDir(options.resourcesFolder).exists()) {
        *error = QStringLiteral("The program's resources are missing from %1.").arg(options.resourcesFolder);
        return nullptr;
    }

    std::unique_ptr<ApplicationServices> services(new ApplicationServices(folder));
    if (!services->lock_.tryLock()) {
        if (services->lock_.error() == QLockFile::LockFailedError)
            *error = QStringLiteral("The program is running already with the data folder %1.").arg(folder);
        else
            *error = QStringLiteral("The data folder %1 can't be written.").arg(folder);
        return nullptr;
    }

    Clock *clock = options.clock != nullptr ? options.clock : &services->systemClock_;
    RandomSource *random = options.random != nullptr ? options.random : &services->systemRandom_;
    services->userDefaults_ = std::make_unique<UserDefaults>(folder + QStringLiteral("/UserDefaults.plist"));
    // Without its settings the program would ask for no passcode and begin a new diet.
    if (const std::optional<Error> unread = services->userDefaults_->readError()) {
        *error = QStringLiteral("The settings in %1 can't be read: %2.").arg(unread->where, unread->reason);
        return nullptr;
    }
    services->strings_ = std::make_unique<StringTables>(options.resourcesFolder,
                                                        preferredLanguage(options.language, *services->userDefaults_));
    services->presenter_ = std::make_unique<DesktopNotificationPresenter>(applicationName);
    services->notifications_ = std::make_unique<LocalNotificationCenter>(
        folder, services->strings_->localized(QStringLiteral("Диета Кесто")), *clock, *services->presenter_);
    services->platform_ = std::make_unique<Platform>(
        Platform::Services{.documentsFolder = documents,
                           .resourcesFolder = options.resourcesFolder,
                           .picturesFolder = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation),
                           .version = options.version,
                           .userDefaults = services->userDefaults_.get(),
                           .strings = services->strings_.get(),
                           .notifications = services->notifications_.get(),
                           .clock = clock,
                           .random = random,
                           .calendar = Calendar(),
                           .urlOpener = &QDesktopServices::openUrl});
    return services;
}

bool ApplicationServices::canKeepData(const QString &folder)
{
    const QFileInfo documents(folder + QStringLiteral("/Documents"));
    return QFileInfo(folder).isWritable() && documents.isDir() && documents.isWritable();
}

QString ApplicationServices::defaultDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString ApplicationServices::resourcesFolderBeside(const QString &applicationFolder)
{
    return QDir::cleanPath(applicationFolder + QStringLiteral("/../share/kesto"));
}

} // namespace kesto
