#pragma once

#include <QObject>

namespace kesto
{

/// Whether the user has the program before them. On a phone it leaves when another program comes up; on a desktop,
/// where windows lie side by side, only when its window is minimised or the screen is locked.
class ApplicationLifecycle : public QObject
{
    Q_OBJECT
public:
    /// inactiveIsBackground: the system shows one program at a time, but reports one that is out of sight as inactive
    /// only.
    explicit ApplicationLifecycle(bool inactiveIsBackground, QObject *parent = nullptr)
        : QObject(parent)
        , inactiveIsBackground_(inactiveIsBackground)
    {
    }

    /// Whether the session is one of a phone's shell.
    [[nodiscard]] static bool systemShowsOneProgramAtATime();

    void setApplicationState(Qt::ApplicationState state);
    void setWindowMinimized(bool minimized);
    /// Also connected to the session's screen saver by watchScreenLock().
    Q_SLOT void setScreenLocked(bool locked);
    void watchScreenLock();

    [[nodiscard]] bool isInBackground() const { return inBackground_; }
    /// In the foreground, and what the user types goes to it.
    [[nodiscard]] bool isActive() const { return active_; }

Q_SIGNALS:
    void didEnterBackground();
    void willEnterForeground();
    void activeChanged(bool active);

private:
    void update();

    const bool inactiveIsBackground_;
    Qt::ApplicationState state_ = Qt::ApplicationActive;
    bool minimized_ = false;
    bool screenLocked_ = false;
    bool inBackground_ = false;
    bool active_ = true;
};

} // namespace kesto
