#include "platform/DesktopNotificationPresenter.h"

#include "platform/Log.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <utility>

namespace kesto
{

DesktopNotificationPresenter::DesktopNotificationPresenter(QString applicationName, QDBusConnection bus,
                                                           QObject *parent)
    : QObject(parent)
    , applicationName_(std::move(applicationName))
    , bus_(std::move(bus))
{
}

void DesktopNotificationPresenter::show(const QString &title, const QString &body, bool sound)
{
    if (!bus_.isConnected()) {
        reportOnce(QStringLiteral("there is no message bus"));
        return;
    }
    if (markup_ == Markup::Plain || markup_ == Markup::Escaped) {
        notify(title, body, sound);
        return;
    }
    untilAnswered_.emplace_back([this, title, body, sound] { notify(title, body, sound); });
    if (std::exchange(markup_, Markup::Asked) == Markup::Asked)
        return;
    call(QStringLiteral("GetCapabilities"), {}, [this](const QDBusMessage &answer) {
        const bool known = answer.type() == QDBusMessage::ReplyMessage;
        const QStringList capabilities = answer.arguments().value(0).toStringList();
        markup_ = capabilities.contains(QStringLiteral("body-markup")) ? Markup::Escaped : Markup::Plain;
        for (const auto &message : std::exchange(untilAnswered_, {}))
            message();
        if (!known)
            markup_ = Markup::NotAsked; // the service may start later
    });
}

void DesktopNotificationPresenter::notify(const QString &title, const QString &body, bool sound)
{
    QVariantMap hints{{QStringLiteral("desktop-entry"), applicationName_}};
    if (sound)
        hints.insert(QStringLiteral("sound-name"), QStringLiteral("message-new-instant"));
    else
        hints.insert(QStringLiteral("suppress-sound"), true);
    const uint replacesNone = 0;
    const int serversOwnTimeout = -1;
    call(QStringLiteral("Notify"),
         {applicationName_, replacesNone, applicationName_, title,
          markup_ == Markup::Escaped ? body.toHtmlEscaped() : body, QStringList(), hints, serversOwnTimeout},
         {});
}

void DesktopNotificationPresenter::call(const QString &method, const QVariantList &arguments, Answer answered)
{
    QDBusMessage message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.Notifications"),
                                                          QStringLiteral("/org/freedesktop/Notifications"),
                                                          QStringLiteral("org.freedesktop.Notifications"), method);
    message.setArguments(arguments);
    auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, answered = std::move(answered)] {
        watcher->deleteLater();
        if (watcher->isError())
            reportOnce(watcher->error().message());
        if (answered)
            answered(watcher->reply());
    });
}

void DesktopNotificationPresenter::reportOnce(const QString &reason)
{
    if (!std::exchange(reported_, true))
        log("Notifications can't be shown: %@", reason);
}

} // namespace kesto
