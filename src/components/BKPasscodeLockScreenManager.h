#pragma once

#include <QObject>

#include <memory>

namespace kesto
{

class BKPasscodeLockScreenManager;
class Platform;
class ViewController;

/// Says whether there is a lock, and what it looks like.
class BKPasscodeLockScreenManagerDelegate
{
public:
    virtual ~BKPasscodeLockScreenManagerDelegate() = default;
    [[nodiscard]] virtual bool lockScreenManagerShouldShowLockScreen(BKPasscodeLockScreenManager &manager) = 0;
    [[nodiscard]] virtual std::unique_ptr<ViewController>
    lockScreenManagerPasscodeViewController(BKPasscodeLockScreenManager &manager) = 0;
};

/// Puts the lock screen over the window. It leaves by ViewController::dismissViewController() from within.
class BKPasscodeLockScreenManager : public QObject
{
    Q_OBJECT
public:
    static BKPasscodeLockScreenManager &sharedManager();
    explicit BKPasscodeLockScreenManager(Platform &platform);

    /// The delegate outlives the manager or is taken back by a null one.
    void setDelegate(BKPasscodeLockScreenManagerDelegate *delegate) { delegate_ = delegate; }
    /// Nothing happens while it is shown already, or when the delegate says no.
    void showLockScreen(bool animated);
    [[nodiscard]] bool isLockScreenShown() const;

private:
    BKPasscodeLockScreenManagerDelegate *delegate_ = nullptr;
};

} // namespace kesto
