#include "platform/DesktopSettings.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <utility>

namespace kesto
{

namespace
{

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");

// The desktops that hand their settings to the portal agree on this one.
const QString group = QStringLiteral("org.gnome.desktop.interface");
const QString animationsKey = QStringLiteral("enable-animations");

/// An answer comes in an envelope, or, of older portals, in one within another.
QVariant unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

DesktopSettings::DesktopSettings(QDBusConnection bus, QObject *parent)
    : QObject(parent)
    , bus_(std::move(bus))
{
}

void DesktopSettings::follow()
{
    if (std::exchange(following_, true) || !bus_.isConnected())
        return;
    bus_.connect({}, path, interface, QStringLiteral("SettingChanged"), this,
                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    message.setArguments({group, animationsKey});
    auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (!watcher->isError())
            setAnimations(watcher->reply().arguments().value(0));
    });
}

void DesktopSettings::settingChanged(const QString &changedGroup, const QString &key, const QDBusVariant &value)
{
    if (changedGroup == group && key == animationsKey)
        setAnimations(QVariant::fromValue(value));
}

void DesktopSettings::setAnimations(const QVariant &value)
{
    const QVariant said = unwrapped(value);
    if (said.typeId() != QMetaType::Bool || said.toBool() == animations_)
        return;
    animations_ = said.toBool();
    Q_EMIT animationsChanged(animations_);
}

} // namespace kesto
