#include "support/TestPlatform.h"

#include <QCoreApplication>
#include <QDir>

#include <utility>

namespace kesto::test
{

TestPlatform::TestPlatform()
    : TestPlatform(Options())
{
}

TestPlatform::TestPlatform(Options options)
    : options_(std::move(options))
    , clock_(options_.now)
{
    if (options_.resourcesFolder.isEmpty())
        options_.resourcesFolder = QStringLiteral(KESTO_RESOURCES_FOLDER);
    if (options_.cloud)
        cloudStore_ = std::make_unique<InMemoryCloudStore>();
    if (!folder_.isValid() || !QDir().mkpath(documentsFolder()))
        qFatal("No temporary folder");
    start();
}

TestPlatform::~TestPlatform() { stop(); }

void TestPlatform::start()
{
    userDefaults_ = std::make_unique<UserDefaults>(defaultsPath());
    strings_ = std::make_unique<StringTables>(options_.resourcesFolder, options_.language);
    if (options_.notificationCenter)
        center_ = std::make_unique<LocalNotificationCenter>(folder(), QStringLiteral("Kesto"), clock_, presenter_);
    else if (!recording_)
        recording_ = std::make_unique<RecordingNotifications>();
    LocalNotifications *notifications = recording_.get();
    if (center_)
        notifications = center_.get();
    platform_ = std::make_unique<Platform>(
        Platform::Services{.documentsFolder = documentsFolder(),
                           .resourcesFolder = options_.resourcesFolder,
                           .picturesFolder = folder() + QStringLiteral("/Pictures"),
                           .version = options_.version,
                           .userDefaults = userDefaults_.get(),
                           .strings = strings_.get(),
                           .notifications = notifications,
                           .clock = &clock_,
                           .random = &random_,
                           .cloudStore = cloudStore_.get(),
                           .calendar = Calendar(QTimeZone(options_.timeZone), options_.firstWeekday),
                           .urlOpener = [this](const QUrl &url) {
                               openedUrls_.append(url);
                               return true;
                           }});
}

void TestPlatform::stop()
{
    platform_.reset();
    center_.reset();
    strings_.reset();
    userDefaults_.reset();
}

void TestPlatform::restart()
{
    stop();
    start();
}

void TestPlatform::restart(const QString &version)
{
    options_.version = version;
    restart();
}

void TestPlatform::moveTo(const QByteArray &timeZone, Qt::DayOfWeek firstWeekday)
{
    platform_->setCalendar(Calendar(QTimeZone(timeZone), firstWeekday));
    QCoreApplication::processEvents();
}

QDateTime TestPlatform::date(int year, int month, int day, int hour, int minute, int second) const
{
    return calendar().instant(QDate(year, month, day), QTime(hour, minute, second));
}

} // namespace kesto::test
