#pragma once

#include "platform/LocalNotificationCenter.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "support/FakeClock.h"
#include "support/InMemoryCloudStore.h"
#include "support/Printing.h"
#include "support/RecordingNotifications.h"
#include "support/SequenceRandomSource.h"

#include <QList>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

namespace kesto::test
{

/// A platform of its own for a test: a temporary folder, a clock that stands still, random numbers by order. It is
/// Platform::current() while it lives.
class TestPlatform
{
public:
    struct Options
    {
        QByteArray timeZone = "Europe/Berlin";
        Qt::DayOfWeek firstWeekday = Qt::Monday;
        QDateTime now = QDateTime(QDate(2024, 3, 7), QTime(9, 30), Qt::UTC);
        QString resourcesFolder; ///< the shipped ones when empty
        QString language = QStringLiteral("ru");
        QString version = QStringLiteral("1.0");
        bool cloud = false;              ///< with an InMemoryCloudStore
        bool notificationCenter = false; ///< the real centre with a RecordingPresenter
    };

    TestPlatform();
    explicit TestPlatform(Options options);
    ~TestPlatform();

    /// Ends the program and starts it again: everything in memory is made anew, but for the clock, the cloud, the
    /// recorded notifications and the presenter, over the same folder.
    void restart();
    void restart(const QString &version);

    [[nodiscard]] Platform &platform() { return *platform_; }
    [[nodiscard]] QString folder() const { return folder_.path(); }
    [[nodiscard]] QString documentsFolder() const { return folder() + QStringLiteral("/Documents"); }
    [[nodiscard]] QString defaultsPath() const { return folder() + QStringLiteral("/UserDefaults.plist"); }
    [[nodiscard]] UserDefaults &userDefaults() { return *userDefaults_; }
    [[nodiscard]] StringTables &strings() { return *strings_; }
    [[nodiscard]] FakeClock &clock() { return clock_; }
    [[nodiscard]] SequenceRandomSource &random() { return random_; }
    [[nodiscard]] const Calendar &calendar() const { return platform_->calendar(); }
    /// The user's system moves to another zone; what the program posts about it is delivered.
    void moveTo(const QByteArray &timeZone, Qt::DayOfWeek firstWeekday);
    /// Only with the option cloud.
    [[nodiscard]] InMemoryCloudStore &cloudStore() { return *cloudStore_; }
    /// Only without the option notificationCenter.
    [[nodiscard]] RecordingNotifications &notifications() { return *recording_; }
    /// Only with the option notificationCenter.
    [[nodiscard]] LocalNotificationCenter &notificationCenter() { return *center_; }
    [[nodiscard]] RecordingPresenter &presenter() { return presenter_; }
    /// The addresses that were given to the system to open.
    [[nodiscard]] const QList<QUrl> &openedUrls() const { return openedUrls_; }

    /// The instant that a clock in the platform's time zone shows.
    [[nodiscard]] QDateTime date(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) const;

private:
    void start();
    void stop();

    Options options_;
    QTemporaryDir folder_;
    FakeClock clock_;
    SequenceRandomSource random_;
    RecordingPresenter presenter_;
    QList<QUrl> openedUrls_;
    std::unique_ptr<InMemoryCloudStore> cloudStore_;
    std::unique_ptr<UserDefaults> userDefaults_;
    std::unique_ptr<StringTables> strings_;
    std::unique_ptr<RecordingNotifications> recording_;
    std::unique_ptr<LocalNotificationCenter> center_;
    std::unique_ptr<Platform> platform_;
};

} // namespace kesto::test
