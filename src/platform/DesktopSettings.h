#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

namespace kesto
{

/// What the user chose for the whole desktop, as the settings portal (org.freedesktop.portal.Settings) on a message
/// bus tells it. Never waits for the bus; without one, or without a portal, the user chose nothing.
class DesktopSettings final : public QObject
{
    Q_OBJECT
public:
    explicit DesktopSettings(QDBusConnection bus = QDBusConnection::sessionBus(), QObject *parent = nullptr);

    /// Asks, and listens from then on. Only the first call counts.
    void follow();
    /// Whether things may move; true until the desktop said otherwise.
    [[nodiscard]] bool animations() const { return animations_; }

Q_SIGNALS:
    void animationsChanged(bool animations);

private:
    Q_SLOT void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);
    void setAnimations(const QVariant &value);

    QDBusConnection bus_;
    bool following_ = false;
    bool animations_ = true;
};

} // namespace kesto
