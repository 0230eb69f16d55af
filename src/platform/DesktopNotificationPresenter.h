#pragma once

#include "platform/NotificationPresenter.h"

#include <QDBusConnection>
#include <QObject>
#include <QStringList>

#include <functional>
#include <vector>

namespace kesto
{

/// Shows messages through the desktop's notification service (org.freedesktop.Notifications) on a message bus. Never
/// waits for the bus; without one, or without the service, messages are dropped and the first failure is logged.
class DesktopNotificationPresenter final : public QObject, public NotificationPresenter
{
    Q_OBJECT
public:
    /// applicationName is the program's desktop file without its ending; the service takes icon and settings from it.
    explicit DesktopNotificationPresenter(QString applicationName, QDBusConnection bus = QDBusConnection::sessionBus(),
                                          QObject *parent = nullptr);

    void show(const QString &title, const QString &body, bool sound) override;

private:
    using Answer = std::function<void(const QDBusMessage &)>;
    void call(const QString &method, const QVariantList &arguments, Answer answered);
    void notify(const QString &title, const QString &body, bool sound);
    void reportOnce(const QString &reason);

    enum class Markup { NotAsked, Asked, Plain, Escaped };

    const QString applicationName_;
    QDBusConnection bus_;
    Markup markup_ = Markup::NotAsked;
    std::vector<std::function<void()>> untilAnswered_; // messages that wait for the service to say what it can do
    bool reported_ = false;
};

} // namespace kesto
