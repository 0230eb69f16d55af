#include "platform/DesktopNotificationPresenter.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusServer>
#include <QDir>
#include <QTest>

using namespace kesto;
using kesto::test::LogCapture;

namespace
{

// The desktop's side, at the other end of a connection without a bus.
class NotificationService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    struct Call
    {
        QString icon;
        QString summary;
        QString body;
        QVariantMap hints;
        int timeout = 0;
    };
    QStringList capabilities;
    QList<Call> calls;
    int asked = 0;

public Q_SLOTS:
    Q_SCRIPTABLE QStringList GetCapabilities() // NOLINT: the names are the interface's
    {
        ++asked;
        return capabilities;
    }
    Q_SCRIPTABLE uint Notify(const QString &, uint, const QString &icon, const QString &summary, const QString &body,
                             const QStringList &, const QVariantMap &hints, int timeout)
    {
        calls.append({icon, summary, body, hints, timeout});
        return static_cast<uint>(calls.size());
    }
};

class DesktopNotificationPresenterTest : public testing::Test
{
protected:
    QDBusServer server_{u"unix:tmpdir="_qs + QDir::tempPath()};
    NotificationService service_;
    bool hasService_ = true;

    void SetUp() override
    {
        server_.setAnonymousAuthenticationAllowed(true);
        QObject::connect(&server_, &QDBusServer::newConnection, &server_, [this](QDBusConnection connection) {
            if (hasService_)
                connection.registerObject(u"/org/freedesktop/Notifications"_qs, &service_,
                                          QDBusConnection::ExportAllSlots);
            ends_.append(connection);
        });
    }
    void TearDown() override { QDBusConnection::disconnectFromPeer(u"desktop"_qs); }
    QDBusConnection connect() { return QDBusConnection::connectToPeer(server_.address(), u"desktop"_qs); }

private:
    QList<QDBusConnection> ends_;
};

TEST_F(DesktopNotificationPresenterTest, ShowsPlainTextWhateverTheServiceMakesOfMarkup)
{
    for (const bool markup : {false, true}) {
        service_.capabilities = markup ? QStringList{u"body"_qs, u"body-markup"_qs} : QStringList{u"body"_qs};
        service_.calls.clear();
        service_.asked = 0;
        DesktopNotificationPresenter presenter(u"kesto"_qs, connect());
        presenter.show(u"Kesto"_qs, u"Вода <1 л> & хлеб"_qs, true);
        presenter.show(u"Kesto"_qs, u"b"_qs, false);
        ASSERT_TRUE(QTest::qWaitFor([&] { return service_.calls.size() == 2; }));
        EXPECT_EQ(service_.asked, 1);
        EXPECT_EQ(service_.calls[0].summary, u"Kesto"_qs);
        EXPECT_EQ(service_.calls[0].body, markup ? u"Вода &lt;1 л&gt; &amp; хлеб"_qs : u"Вода <1 л> & хлеб"_qs);
        EXPECT_TRUE(service_.calls[0].hints.contains(u"sound-name"_qs));
        EXPECT_EQ(service_.calls[1].hints.value(u"suppress-sound"_qs), QVariant(true));
        EXPECT_EQ(service_.calls[1].timeout, -1);
        QDBusConnection::disconnectFromPeer(u"desktop"_qs);
    }
}

TEST_F(DesktopNotificationPresenterTest, SaysOnceThatThereIsNoService)
{
    hasService_ = false;
    LogCapture capture;
    DesktopNotificationPresenter presenter(u"kesto"_qs, connect());
    presenter.show(u"Kesto"_qs, u"a"_qs, false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !capture.lines().isEmpty(); }));
    presenter.show(u"Kesto"_qs, u"b"_qs, false);
    QTest::qWait(50);
    EXPECT_EQ(capture.lines().size(), 1);
    EXPECT_TRUE(capture.lines().constFirst().startsWith(u"Notifications can't be shown: "_qs));
}

TEST(DesktopNotificationPresenter, SaysOnceThatThereIsNoBus)
{
    LogCapture capture;
    DesktopNotificationPresenter presenter(u"kesto"_qs, QDBusConnection(u"no such connection"_qs));
    presenter.show(u"Kesto"_qs, u"a"_qs, true);
    presenter.show(u"Kesto"_qs, u"b"_qs, true);
    EXPECT_EQ(capture.lines(), QStringList{u"Notifications can't be shown: there is no message bus"_qs});
}

} // namespace

#include "DesktopNotificationPresenterTest.moc"
