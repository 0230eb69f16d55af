#include "app/AppDelegate.h"

#include "app/PlainViewController.h"
#include "app/RootViewConrollerViewController.h"
#include "app/StoreAlert.h"
#include "components/AlertCenter.h"
#include "components/DayWatch.h"
#include "components/NavigationController.h"
#include "components/RatingPrompt.h"
#include "components/SideMenuContainer.h"
#include "components/Window.h"
#include "import/UpdatingDatabaseViewController.h"
#include "journal/WaterVals.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"
#include "style/Styllesheet.h"

#include <utility>

namespace kesto
{

namespace
{

const QString storeIdentifier = QStringLiteral("kesto");

bool isOfTimer(const LocalNotification &notification)
{
    return notification.userInfo.contains(QStringLiteral("kTimerID"));
}

} // namespace

AppDelegate::AppDelegate(Platform &platform)
    : platform_(platform)
    , window_(Window::sharedWindow())
{
    connect(&platform.notifications(), &LocalNotifications::didReceive, this,
            [this](const LocalNotification &notification) { application(notification); });
}

AppDelegate::~AppDelegate()
{
    BKPasscodeLockScreenManager::sharedManager().setDelegate(nullptr);
    if (auto *split = qobject_cast<SplitViewController *>(window_.rootViewController()); split != nullptr)
        split->setDelegate(nullptr);
    window_.setRootViewController(nullptr);
}

bool AppDelegate::application(const LaunchOptions &didFinishLaunchingWithOptions)
{
    becomeLockScreenDelegate();
    registerDefaultSettings();
    applyStyle();
    countDownBadge(didFinishLaunchingWithOptions);
    arrangeScreens(makeRootMenu());
    showWindow();
    checkVersion();
    startRatingPrompt();
    showLockScreenAtLaunch();
    watchStore();
    return true;
}

void AppDelegate::applicationCannotStart(const QString &reason)
{
    applyStyle();
    arrangement_ = std::make_unique<PlainViewController>();
    showWindow();
    AlertCenter::sharedCenter().show({.title = localized(QStringLiteral("store problem")),
                                      .message = reason,
                                      .buttons = {{localized(QStringLiteral("store quit")), Alert::Role::Cancel}},
                                      .answered = [this](const AlertAnswer &) { Q_EMIT quitRequested(); }});
}

void AppDelegate::becomeLockScreenDelegate() { BKPasscodeLockScreenManager::sharedManager().setDelegate(this); }

void AppDelegate::registerDefaultSettings()
{
    const QString centimetres = QStringLiteral("см");
    const bool russian = platform_.strings().localized(centimetres) == centimetres;
    platform_.userDefaults().registerDefaults({{Keys::kSystemKey, 0},
                                               {Keys::kLangluageKey, russian ? 0 : 1},
                                               {Keys::kUseICloudKey, true},
                                               {Keys::kWaterWalskey, defultsWaterVals()}});
}

void AppDelegate::applyStyle() { platform_.shared<Styllesheet>().customizeUIthroughtApperanceProtocol(); }

void AppDelegate::countDownBadge(const LaunchOptions &options)
{
    const std::optional<LocalNotification> &notification = options.localNotification;
    if (notification && !isOfTimer(*notification))
        platform_.notifications().setApplicationIconBadgeNumber(notification->badgeNumber - 1);
}

std::unique_ptr<NavigationController> AppDelegate::makeRootMenu()
{
    auto menu = std::make_unique<RootViewConrollerViewController>();
    menu_ = menu.get();
    return std::make_unique<NavigationController>(std::move(menu));
}

void AppDelegate::arrangeScreens(std::unique_ptr<NavigationController> menu)
{
    if (window_.isTablet()) {
        auto split = std::make_unique<SplitViewController>(
            std::move(menu), std::make_unique<NavigationController>(std::make_unique<PlainViewController>()));
        split->setDelegate(this);
        arrangement_ = std::move(split);
        return;
    }
    const bool started = platform_.userDefaults().valueForKey(Keys::kStartDietDateKey).isValid();
    auto center = ScreenFactory::make(started ? ScreenName::Calendar : ScreenName::Calculator, *menu_);
    center->setTitle(
        localized(started ? QStringLiteral("Календарь диеты") : QStringLiteral("Калькулятор веса по Кесто")));
    center->setShowsMenuIcon(true);
    arrangement_ =
        std::make_unique<SideMenuContainer>(std::make_unique<NavigationController>(std::move(center)), std::move(menu));
}

void AppDelegate::showWindow()
{
    const Styllesheet &style = platform_.shared<Styllesheet>();
    window_.setBackgroundImage(style.backgroundImage());
    window_.setTintColor(style.tintColor());
    window_.setRootViewController(std::move(arrangement_));
}

void AppDelegate::checkVersion()
{
    const QString version = platform_.version();
    const QString imported = platform_.userDefaults().stringForKey(Keys::kAppVersionKey);
    const bool isCurrent = !imported.isNull() && imported == version;
    // The version is recorded even when the import could not be saved.
    const bool isMissing = isCurrent && platform_.userDefaults().boolForKey(Keys::kImportFailedKey) &&
                           CoreDataManager::sharedManager().holdsNoDish();
    if (isCurrent && !isMissing)
        return;
    auto waitScreen = std::make_unique<UpdatingDatabaseViewController>();
    waitScreen->setAppVersion(version);
    waitScreen->setMode(imported.isNull() || isMissing ? 0 : 1);
    window_.rootViewController()->presentViewController(std::move(waitScreen), false);
}

void AppDelegate::startRatingPrompt()
{
    RatingPrompt &prompt = RatingPrompt::sharedPrompt();
    prompt.configure({.appID = storeIdentifier, .daysUntilPrompt = 1, .usesUntilPrompt = 10, .timeBeforeReminding = 2});
    prompt.appLaunched(true);
}

void AppDelegate::showLockScreenAtLaunch()
{
    if (platform_.userDefaults().valueForKey(Keys::kPasscodeKey).isValid())
        BKPasscodeLockScreenManager::sharedManager().showLockScreen(false);
}

void AppDelegate::watchStore()
{
    const CoreDataManager &manager = CoreDataManager::sharedManager();
    connect(&manager, &CoreDataManager::storeRefused, this, [this, &manager] {
        if (manager.storeProblem())
            tellStoreProblem(*manager.storeProblem());
    });
}

void AppDelegate::tellStoreProblem(const StoreProblem &problem)
{
    showStoreProblem(problem, [this](StoreAnswer answer) {
        if (answer == StoreAnswer::Quit)
            Q_EMIT quitRequested();
        else
            startWithEmptyStore();
    });
}

void AppDelegate::startWithEmptyStore()
{
    CoreDataManager &manager = CoreDataManager::sharedManager();
    if (const Result<void> started = manager.startWithEmptyStore(); !started) {
        log(started.error().message());
        tellStoreProblem(
            {.kind = StoreProblem::Kind::Other, .path = started.error().where, .reason = started.error().reason});
        return;
    }
    manager.updateSqliteFileForNewStartDietDay(); // the plan stays in the settings
    // The screens were made over the store that could not be read.
    arrangeScreens(makeRootMenu());
    showWindow();
    checkVersion();
}

void AppDelegate::application(const LocalNotification &didReceiveLocalNotification)
{
    log(QStringLiteral("recive local not"));
    Alert alert;
    alert.message = didReceiveLocalNotification.alertBody;
    alert.buttons = {{localized(QStringLiteral("OK")), Alert::Role::Cancel}};
    AlertCenter::sharedCenter().show(std::move(alert));
    if (isOfTimer(didReceiveLocalNotification)) {
        log(QStringLiteral("timer"));
        platform_.userDefaults().removeObjectForKey(Keys::kTimerKey);
    } else {
        log(QStringLiteral("reminder"));
    }
}

void AppDelegate::applicationDidEnterBackground()
{
    saveChanges();
    BKPasscodeLockScreenManager::sharedManager().showLockScreen(false);
}

void AppDelegate::applicationWillEnterForeground()
{
    platform_.userDefaults().synchronize();
    DayWatch::sharedWatch().look();
    RatingPrompt::sharedPrompt().appEnteredForeground(true);
}

void AppDelegate::applicationWillTerminate()
{
    saveChanges();
    platform_.userDefaults().synchronize();
}

// The system may kill a program in the background without notice.
void AppDelegate::saveChanges() { CoreDataManager::sharedManager().managedObjectContext()->saveOrKeepChanges(); }

bool AppDelegate::lockScreenManagerShouldShowLockScreen(BKPasscodeLockScreenManager &)
{
    return platform_.userDefaults().valueForKey(Keys::kPasscodeKey).isValid();
}

std::unique_ptr<ViewController> AppDelegate::lockScreenManagerPasscodeViewController(BKPasscodeLockScreenManager &)
{
    return std::make_unique<NavigationController>(
        std::make_unique<BKPasscodeViewController>(BKPasscodeViewController::Type::Check, this));
}

void AppDelegate::passcodeViewController(BKPasscodeViewController &, const QString &authenticatePasscode,
                                         const std::function<void(bool)> &resultHandler)
{
    const QString stored = platform_.userDefaults().stringForKey(Keys::kPasscodeKey);
    resultHandler(!stored.isNull() && stored == authenticatePasscode);
}

void AppDelegate::passcodeViewController(BKPasscodeViewController &passcodeViewController, const QString &)
{
    passcodeViewController.dismissViewController(true);
}

void AppDelegate::passcodeViewControllerDidFailAttempt(BKPasscodeViewController &) { log(QStringLiteral("FAILED")); }

void AppDelegate::splitViewControllerWillHideMaster(SplitViewController &splitViewController,
                                                    BarButtonItem &displayModeButtonItem)
{
    displayModeButtonItem.setTitle(localized(QStringLiteral("Диета Кесто")));
    if (auto *detail = qobject_cast<NavigationController *>(splitViewController.detail()); detail != nullptr)
        detail->rootViewController()->setMenuBarButtonItem(&displayModeButtonItem);
}

void AppDelegate::splitViewControllerWillShowMaster(SplitViewController &splitViewController, BarButtonItem &)
{
    if (auto *detail = qobject_cast<NavigationController *>(splitViewController.detail()); detail != nullptr)
        detail->rootViewController()->setMenuBarButtonItem(nullptr);
}

} // namespace kesto
