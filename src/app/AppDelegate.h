#pragma once

#include "components/BKPasscodeLockScreenManager.h"
#include "components/BKPasscodeViewController.h"
#include "components/SplitViewController.h"
#include "platform/LocalNotifications.h"

#include <QObject>

#include <memory>
#include <optional>

namespace kesto
{

class NavigationController;
class Platform;
class RootViewConrollerViewController;
struct StoreProblem;
class Window;

/// Sets the program up and handles the system's events. Lives as long as the program; the platform outlives it.
class AppDelegate : public QObject,
                    public BKPasscodeLockScreenManagerDelegate,
                    public BKPasscodeViewControllerDelegate,
                    public SplitViewControllerDelegate
{
    Q_OBJECT
public:
    struct LaunchOptions
    {
        std::optional<LocalNotification> localNotification; ///< whose touch started the program
    };

    explicit AppDelegate(Platform &platform);
    /// Empties the window.
    ~AppDelegate() override;

    bool application(const LaunchOptions &didFinishLaunchingWithOptions);
    /// Instead of a launch: shows nothing but an alert with this reason and a button that quits.
    void applicationCannotStart(const QString &reason);
    void application(const LocalNotification &didReceiveLocalNotification);
    void applicationDidEnterBackground();
    void applicationWillEnterForeground();
    void applicationWillTerminate();

    /// Null before the launch.
    [[nodiscard]] RootViewConrollerViewController *rootMenu() const { return menu_; }

Q_SIGNALS:
    /// The user wants to leave because the store cannot be opened.
    void quitRequested();

public:
    [[nodiscard]] bool lockScreenManagerShouldShowLockScreen(BKPasscodeLockScreenManager &manager) override;
    [[nodiscard]] std::unique_ptr<ViewController>
    lockScreenManagerPasscodeViewController(BKPasscodeLockScreenManager &manager) override;

    void passcodeViewController(BKPasscodeViewController &passcodeViewController, const QString &authenticatePasscode,
                                const std::function<void(bool)> &resultHandler) override;
    void passcodeViewController(BKPasscodeViewController &passcodeViewController,
                                const QString &didFinishWithPasscode) override;
    void passcodeViewControllerDidFailAttempt(BKPasscodeViewController &passcodeViewController) override;

    void splitViewControllerWillHideMaster(SplitViewController &splitViewController,
                                           BarButtonItem &displayModeButtonItem) override;
    void splitViewControllerWillShowMaster(SplitViewController &splitViewController,
                                           BarButtonItem &displayModeButtonItem) override;

private:
    static void saveChanges();
    // The launch, in this order.
    void becomeLockScreenDelegate();
    void registerDefaultSettings();
    void applyStyle();
    void countDownBadge(const LaunchOptions &options);
    [[nodiscard]] std::unique_ptr<NavigationController> makeRootMenu();
    void arrangeScreens(std::unique_ptr<NavigationController> menu);
    void showWindow();
    void checkVersion();
    void startRatingPrompt();
    void showLockScreenAtLaunch();
    void watchStore();

    void tellStoreProblem(const StoreProblem &problem);
    void startWithEmptyStore();

    Platform &platform_;
    Window &window_;
    RootViewConrollerViewController *menu_ = nullptr; // in the window
    std::unique_ptr<ViewController> arrangement_;     // until the window shows it
};

} // namespace kesto
