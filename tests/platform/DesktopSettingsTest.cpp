#include "platform/DesktopSettings.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDir>
#include <QTest>

using namespace kesto;

namespace
{

// The desktop's side, at the other end of a connection without a bus.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    QVariant animations;
    int asked = 0;

public Q_SLOTS:
    Q_SCRIPTABLE QDBusVariant Read(const QString &group, const QString &key) // NOLINT: the interface's name
    {
        ++asked;
        const bool known = group == u"org.gnome.desktop.interface"_qs && key == u"enable-animations"_qs;
        return QDBusVariant(known ? animations : QVariant(u"another"_qs));
    }
};

class DesktopSettingsTest : public testing::Test
{
protected:
    const QString path_ = u"/org/freedesktop/portal/desktop"_qs;
    QDBusServer server_{u"unix:tmpdir="_qs + QDir::tempPath()};
    Portal portal_;
    QList<QDBusConnection> ends_;

    void SetUp() override
    {
        server_.setAnonymousAuthenticationAllowed(true);
        QObject::connect(&server_, &QDBusServer::newConnection, &server_, [this](QDBusConnection connection) {
            connection.registerObject(path_, &portal_, QDBusConnection::ExportAllSlots);
            ends_.append(connection);
        });
    }
    void TearDown() override { QDBusConnection::disconnectFromPeer(u"settings"_qs); }
    QDBusConnection connect() { return QDBusConnection::connectToPeer(server_.address(), u"settings"_qs); }
    void tell(const QString &group, const QString &key, const QVariant &value)
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(path_, u"org.freedesktop.portal.Settings"_qs, u"SettingChanged"_qs);
        signal.setArguments({group, key, QVariant::fromValue(QDBusVariant(value))});
        ASSERT_TRUE(ends_.last().send(signal));
    }
};

TEST_F(DesktopSettingsTest, AsksAndHearsOfChanges)
{
    // As the portals of today answer, and with the value in a second envelope.
    for (const QVariant &answer : {QVariant(false), QVariant::fromValue(QDBusVariant(false))}) {
        portal_.animations = answer;
        DesktopSettings settings(connect());
        EXPECT_TRUE(settings.animations());
        settings.follow();
        ASSERT_TRUE(QTest::qWaitFor([&] { return !settings.animations(); }));
        tell(u"org.gnome.desktop.interface"_qs, u"cursor-size"_qs, true);
        tell(u"org.freedesktop.appearance"_qs, u"enable-animations"_qs, true);
        tell(u"org.gnome.desktop.interface"_qs, u"enable-animations"_qs, u"yes"_qs);
        QTest::qWait(50);
        EXPECT_FALSE(settings.animations()) << "that was about something else";
        tell(u"org.gnome.desktop.interface"_qs, u"enable-animations"_qs, true);
        EXPECT_TRUE(QTest::qWaitFor([&] { return settings.animations(); }));
        QDBusConnection::disconnectFromPeer(u"settings"_qs);
    }
}

TEST_F(DesktopSettingsTest, MovesWhereNobodyAnswers)
{
    portal_.animations = u"no such setting"_qs;
    DesktopSettings asked(connect());
    asked.follow();
    asked.follow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return portal_.asked > 0; }));
    QTest::qWait(50);
    EXPECT_TRUE(asked.animations());
    EXPECT_EQ(portal_.asked, 1);

    DesktopSettings alone(QDBusConnection(u"no such connection"_qs));
    alone.follow();
    EXPECT_TRUE(alone.animations());
}

} // namespace

#include "DesktopSettingsTest.moc"
