#include "platform/LocalNotificationCenter.h"
#include "platform/PropertyList.h"
#include "support/FakeClock.h"
#include "support/LogCapture.h"
#include "support/RecordingNotifications.h"
#include "support/ResourceLimit.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace kesto;
using kesto::test::FakeClock;
using kesto::test::LogCapture;
using kesto::test::RecordingPresenter;
using kesto::test::ResourceLimit;

namespace
{

class LocalNotificationCenterTest : public testing::Test
{
protected:
    QTemporaryDir folder_;
    FakeClock clock_;
    RecordingPresenter presenter_;
    std::unique_ptr<LocalNotificationCenter> center_;
    QStringList received_;

    void SetUp() override { start(); }

    void start()
    {
        center_ = std::make_unique<LocalNotificationCenter>(folder_.path(), u"Kesto"_qs, clock_, presenter_);
        QObject::connect(center_.get(), &LocalNotifications::didReceive, center_.get(),
                         [this](const LocalNotification &one) { received_.append(one.alertBody); });
    }
    void restart()
    {
        center_.reset();
        start();
    }
    [[nodiscard]] LocalNotification notification(const QString &body, qint64 seconds) const
    {
        return {.fireDate = clock_.now().addSecs(seconds), .alertBody = body};
    }
    QString schedule(const QString &body, qint64 seconds)
    {
        return center_->scheduleLocalNotification(notification(body, seconds));
    }
    [[nodiscard]] QStringList waiting() const
    {
        QStringList bodies;
        for (const LocalNotification &one : center_->scheduledLocalNotifications())
            bodies.append(one.alertBody);
        return bodies;
    }
    [[nodiscard]] QStringList shown() const
    {
        QStringList bodies;
        for (const RecordingPresenter::Shown &one : presenter_.shown)
            bodies.append(one.body);
        return bodies;
    }
};

TEST_F(LocalNotificationCenterTest, KeepsEverythingOverRestarts)
{
    LocalNotification reminder{.fireDate = clock_.now().addSecs(60).addMSecs(250),
                               .timeZone = u"Europe/Berlin"_qs,
                               .alertBody = u"Бег: 30 мин, \"вода\" <1 л>"_qs,
                               .defaultSound = true,
                               .badgeNumber = 2,
                               .userInfo = {{u"id"_qs, u"2024-03-06 23:00:00 +0000 - 18.3"_qs}, {u"n"_qs, 1}}};
    reminder.identifier = center_->scheduleLocalNotification(reminder);
    reminder.userInfo[u"n"_qs] = qint64(1);
    const QString timer = center_->scheduleLocalNotification(
        {.fireDate = clock_.now().addSecs(30), .userInfo = {{u"kTimerID"_qs, true}}});
    center_->setApplicationIconBadgeNumber(3);
    ASSERT_FALSE(reminder.identifier.isEmpty());
    EXPECT_NE(reminder.identifier, timer);

    restart();
    const QList<LocalNotification> kept = center_->scheduledLocalNotifications();
    ASSERT_EQ(kept.size(), 2);
    EXPECT_EQ(kept[0].identifier, timer); // the earliest first
    EXPECT_EQ(kept[0].userInfo.value(u"kTimerID"_qs).typeId(), QMetaType::Bool);
    EXPECT_EQ(kept[1], reminder);
    EXPECT_EQ(center_->applicationIconBadgeNumber(), 3);

    center_->cancelLocalNotification(timer);
    center_->cancelLocalNotification(timer);
    center_->cancelLocalNotification(QString());
    center_->setApplicationIconBadgeNumber(-1);
    restart();
    EXPECT_EQ(center_->scheduledLocalNotifications(), QList{reminder});
    EXPECT_EQ(center_->applicationIconBadgeNumber(), 0);
}

TEST_F(LocalNotificationCenterTest, FiresInOrderOnceAndNotEarly)
{
    schedule(u"c"_qs, 20);
    schedule(u"a"_qs, 10);
    schedule(u"b"_qs, 10);
    clock_.advanceMSecs(9'999);
    center_->deliverDue();
    EXPECT_EQ(received_, QStringList());
    clock_.advanceMSecs(1);
    center_->deliverDue();
    center_->deliverDue();
    EXPECT_EQ(received_, (QStringList{u"a"_qs, u"b"_qs}));
    EXPECT_EQ(shown(), received_);
    center_->setApplicationActive(true);
    clock_.advance(3600);
    center_->deliverDue();
    EXPECT_EQ(received_, (QStringList{u"a"_qs, u"b"_qs, u"c"_qs}));
    EXPECT_EQ(shown().size(), 2); // the program shows that one itself
    restart();
    EXPECT_EQ(shown().size(), 2);
    EXPECT_EQ(waiting(), QStringList());
}

TEST_F(LocalNotificationCenterTest, PresentsAtTheNextStartWhatCameDueMeanwhile)
{
    LocalNotification loud = notification(u"loud"_qs, 10);
    loud.defaultSound = true;
    loud.badgeNumber = 4;
    center_->scheduleLocalNotification(loud);
    schedule(u"quiet"_qs, 20);
    schedule(u"later"_qs, 7200);
    center_.reset();
    clock_.advance(3600);
    start();
    EXPECT_EQ(presenter_.shown,
              (QList<RecordingPresenter::Shown>{{u"Kesto"_qs, u"loud"_qs, true}, {u"Kesto"_qs, u"quiet"_qs, false}}));
    EXPECT_EQ(center_->applicationIconBadgeNumber(), 4);
    EXPECT_EQ(received_, QStringList());
    EXPECT_EQ(waiting(), QStringList{u"later"_qs});
    restart();
    EXPECT_EQ(shown().size(), 2);
    EXPECT_EQ(center_->applicationIconBadgeNumber(), 4);
}

TEST_F(LocalNotificationCenterTest, FollowsAClockThatIsSetAnew)
{
    schedule(u"a"_qs, 40 * 86'400); // beyond 2^31 milliseconds
    clock_.advance(-86'400);
    center_->deliverDue();
    restart();
    EXPECT_EQ(waiting(), QStringList{u"a"_qs});
    clock_.advance(41 * 86'400);
    center_->deliverDue();
    EXPECT_EQ(received_, QStringList{u"a"_qs});
}

TEST_F(LocalNotificationCenterTest, TheTimerWaitsForTheNextAndGoesOn)
{
    center_->scheduleLocalNotification({.fireDate = clock_.now().addMSecs(30), .alertBody = u"a"_qs});
    center_->scheduleLocalNotification({.fireDate = clock_.now().addMSecs(60), .alertBody = u"b"_qs});
    QTest::qWait(50);
    EXPECT_EQ(received_, QStringList()); // the timer rang, but by the clock it is not time yet
    clock_.advanceMSecs(30);
    EXPECT_TRUE(QTest::qWaitFor([&] { return received_.size() == 1; }));
    clock_.advanceMSecs(30);
    EXPECT_TRUE(QTest::qWaitFor([&] { return received_.size() == 2; }));
    schedule(u"past"_qs, -5);
    EXPECT_EQ(received_.size(), 2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return received_ == QStringList{u"a"_qs, u"b"_qs, u"past"_qs}; }));
}

TEST_F(LocalNotificationCenterTest, AReceiverMayScheduleAndCancel)
{
    const QString other = schedule(u"other"_qs, 3600);
    QObject::connect(center_.get(), &LocalNotifications::didReceive, center_.get(), [&](const LocalNotification &one) {
        if (one.alertBody == u"a"_qs)
            schedule(u"again"_qs, 60);
        center_->cancelLocalNotification(other);
    });
    schedule(u"a"_qs, 1);
    schedule(u"b"_qs, 1);
    clock_.advance(1);
    center_->deliverDue();
    EXPECT_EQ(received_, (QStringList{u"a"_qs, u"b"_qs}));
    EXPECT_EQ(waiting(), QStringList{u"again"_qs});
    restart();
    EXPECT_EQ(waiting(), QStringList{u"again"_qs});
}

TEST_F(LocalNotificationCenterTest, RefusesWhatItCannotKeep)
{
    LogCapture capture;
    EXPECT_TRUE(center_->scheduleLocalNotification({}).isNull());
    LocalNotification odd = notification(u"odd"_qs, 60);
    odd.userInfo = {{u"x"_qs, QDate(2024, 1, 1)}};
    EXPECT_TRUE(center_->scheduleLocalNotification(odd).isNull());
    EXPECT_EQ(capture.lines().size(), 2);
    EXPECT_EQ(waiting(), QStringList());
}

TEST_F(LocalNotificationCenterTest, SurvivesADamagedFileAndAFolderThatIsGone)
{
    const QString path = folder_.filePath(u"LocalNotifications.plist"_qs);
    schedule(u"a"_qs, 60);
    LogCapture capture;
    ASSERT_TRUE(QFile(path).resize(100));
    restart();
    EXPECT_EQ(waiting(), QStringList());
    EXPECT_TRUE(QFile::exists(path + u".damaged-1"_qs));
    EXPECT_EQ(capture.take().size(), 2);

    // One entry that makes no sense takes the others not along.
    schedule(u"good"_qs, 60);
    QVariantMap content = PropertyList::read(path)->toMap();
    QVariantList entries = content[u"notifications"_qs].toList();
    entries.prepend(u"text"_qs);
    entries.prepend(QVariantMap{{u"identifier"_qs, u"1"_qs}, {u"fireTime"_qs, u"soon"_qs}});
    content[u"notifications"_qs] = entries;
    content[u"badgeNumber"_qs] = -7;
    ASSERT_TRUE(PropertyList::write(content, path));
    restart();
    EXPECT_EQ(waiting(), QStringList{u"good"_qs});
    EXPECT_EQ(center_->applicationIconBadgeNumber(), 0);
    EXPECT_EQ(capture.take().size(), 2);

    ASSERT_TRUE(QDir(folder_.path()).removeRecursively());
    schedule(u"unsaved"_qs, 30);
    EXPECT_EQ(waiting(), (QStringList{u"unsaved"_qs, u"good"_qs}));
    EXPECT_EQ(capture.take().size(), 1);
}

TEST_F(LocalNotificationCenterTest, AddsToAFileThatCouldNotBeReadAtTheStart)
{
    center_->setApplicationIconBadgeNumber(3);
    schedule(u"old"_qs, 60);
    center_.reset();
    LogCapture capture;
    {
        const ResourceLimit noDescriptors(RLIMIT_NOFILE, 0);
        start();
        schedule(u"new"_qs, 30);
        center_->deliverDue();
        EXPECT_EQ(waiting(), QStringList{u"new"_qs});
        EXPECT_EQ(capture.take().size(), 3);
    }
    center_->deliverDue();
    EXPECT_EQ(waiting(), (QStringList{u"new"_qs, u"old"_qs}));
    restart();
    EXPECT_EQ(waiting(), (QStringList{u"new"_qs, u"old"_qs}));
    EXPECT_EQ(center_->applicationIconBadgeNumber(), 3);

    // A failed save is tried again without another change.
    {
        const ResourceLimit full(RLIMIT_FSIZE, 0);
        schedule(u"unsaved"_qs, 90);
    }
    center_->deliverDue();
    restart();
    EXPECT_EQ(waiting(), (QStringList{u"new"_qs, u"old"_qs, u"unsaved"_qs}));
}

} // namespace
