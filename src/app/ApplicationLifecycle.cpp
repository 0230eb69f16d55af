#include "app/ApplicationLifecycle.h"

#include <QDBusConnection>
#include <QtGlobal>

#include <utility>

namespace kesto
{

bool ApplicationLifecycle::systemShowsOneProgramAtATime()
{
    const QByteArray mobile = qgetenv("QT_QUICK_CONTROLS_MOBILE").toLower();
    return mobile == "1" || mobile == "true" || qgetenv("XDG_CURRENT_DESKTOP").toLower().split(':').contains("phosh");
}

void ApplicationLifecycle::setApplicationState(Qt::ApplicationState state)
{
    state_ = state;
    update();
}

void ApplicationLifecycle::setWindowMinimized(bool minimized)
{
    minimized_ = minimized;
    update();
}

void ApplicationLifecycle::setScreenLocked(bool locked)
{
    screenLocked_ = locked;
    update();
}

// Whoever locks the screen says so on the session bus, under the name of the desktop or under the common one.
void ApplicationLifecycle::watchScreenLock()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    for (const QString &service :
         {QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("org.gnome.ScreenSaver")})
        bus.connect({}, {}, service, QStringLiteral("ActiveChanged"), this, SLOT(setScreenLocked(bool)));
}

void ApplicationLifecycle::update()
{
    const bool gone = state_ == Qt::ApplicationSuspended || state_ == Qt::ApplicationHidden || minimized_ ||
                      screenLocked_ || (inactiveIsBackground_ && state_ == Qt::ApplicationInactive);
    const bool active = !gone && state_ == Qt::ApplicationActive;
    if (std::exchange(active_, active) != active)
        Q_EMIT activeChanged(active);
    if (std::exchange(inBackground_, gone) == gone)
        return;
    if (gone)
        Q_EMIT didEnterBackground();
    else
        Q_EMIT willEnterForeground();
}

} // namespace kesto
