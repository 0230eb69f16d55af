#include "app/AppFixture.h"

#include "app/ScreenFactory.h"
#include "components/BKPasscodeViewController.h"
#include "components/NavigationController.h"
#include "components/SideMenuContainer.h"
#include "import/UpdatingDatabaseViewController.h"
#include "model/DietDay.h"
#include "model/Dish.h"
#include "plan/CalendarViewController.h"
#include "platform/PropertyList.h"
#include "platform/objectgraph/PersistentStoreCoordinator.h"
#include "store/CoreDataManager.h"

#include <QDir>

namespace kesto::test
{

namespace
{

class LaunchTest : public AppFixture
{
protected:
    [[nodiscard]] static UpdatingDatabaseViewController *waitScreen()
    {
        return qobject_cast<UpdatingDatabaseViewController *>(window().presentedViewControllers().value(0));
    }

    [[nodiscard]] static BKPasscodeViewController *lock()
    {
        auto *stack = qobject_cast<NavigationController *>(window().lockScreen());
        return stack ? qobject_cast<BKPasscodeViewController *>(stack->topViewController()) : nullptr;
    }
    static void enter(const QList<int> &digits)
    {
        for (const int digit : digits)
            lock()->digit(digit);
        turnEventLoop();
    }
};

TEST_F(LaunchTest, RegistersTheDefaultsThatApplyWhileNothingIsStored)
{
    defaults().setInteger(1, Keys::kSystemKey);
    launch();
    EXPECT_EQ(defaults().integerForKey(Keys::kSystemKey), 1) << "what is stored holds";
    EXPECT_EQ(defaults().valueForKey(Keys::kLangluageKey), QVariant(0LL));
    EXPECT_EQ(defaults().valueForKey(Keys::kUseICloudKey), QVariant(true));
    QStringList portions;
    for (const QVariant &amount : defaults().valueForKey(Keys::kWaterWalskey).toMap())
        portions.append(amount.toString());
    EXPECT_EQ(portions.join(u' '), QStringLiteral("150 300 50 250 200 300 500 1000"));
    defaults().removeObjectForKey(Keys::kSystemKey);
    EXPECT_EQ(defaults().valueForKey(Keys::kSystemKey), QVariant(0LL));
}

TEST_F(LaunchTest, StartsUpInOrder)
{
    defaults().setValue(QStringLiteral("0412"), Keys::kPasscodeKey);
    defaults().removeObjectForKey(Keys::kAppVersionKey);
    QStringList order;
    const QMetaObject::Connection connections[]{
        QObject::connect(&window(), &Window::rootViewControllerChanged,
                         [&] {
                             order.append(defaults().valueForKey(Keys::kWaterWalskey).isValid() &&
                                                  !window().backgroundImage().isEmpty()
                                              ? QStringLiteral("screens over defaults and style")
                                              : QStringLiteral("screens"));
                         }),
        QObject::connect(
            &window(), &Window::presentedViewControllersChanged,
            [&] { order.append(waitScreen() != nullptr ? QStringLiteral("wait screen") : QStringLiteral("?")); }),
        QObject::connect(&window(), &Window::lockScreenChanged, [&] {
            order.append(
                QStringLiteral("lock after use %1").arg(defaults().integerForKey(QStringLiteral("kRatingUsesKey"))));
        })};
    launch(phone);
    for (const QMetaObject::Connection &connection : connections)
        QObject::disconnect(connection);
    EXPECT_EQ(order, QStringList({QStringLiteral("screens over defaults and style"), QStringLiteral("wait screen"),
                                  QStringLiteral("lock after use 1")}));
}

TEST_F(LaunchTest, TheCalendarShowsTheNewDayOnTheReturn)
{
    startDiet();
    launch(phone);
    CalendarMonth &month = *qobject_cast<CalendarViewController *>(mainScreen())->month();
    ASSERT_EQ(month.cells()[month.indexOfToday()].day, QDate(2024, 3, 7));
    delegate_->applicationDidEnterBackground();
    platform_.clock().advance(86'400);
    delegate_->applicationWillEnterForeground();
    EXPECT_EQ(month.cells()[month.indexOfToday()].day, QDate(2024, 3, 8));
}

TEST_F(LaunchTest, ChecksTheVersionByExactComparison)
{
    struct Case
    {
        QVariant stored;
        QString running;
        int mode; // −1: no import
    };
    const QList<Case> cases{{QVariant(), QStringLiteral("1.0"), 0},
                            {QStringLiteral("1.0"), QStringLiteral("1.0"), -1},
                            {QStringLiteral("1.0"), QStringLiteral("1.1"), 1},
                            {QStringLiteral("1.1"), QStringLiteral("1.0"), 1},
                            {QStringLiteral("1.0"), QStringLiteral("1.0.0"), 1},
                            {QString(QStringLiteral("")), QStringLiteral("1.0"), 1}};
    for (const Case &each : cases) {
        SCOPED_TRACE(each.stored.toString().toStdString() + " -> " + each.running.toStdString());
        defaults().setValue(each.stored, Keys::kAppVersionKey);
        restart(each.running);
        launch();
        EXPECT_EQ(waitScreen() != nullptr ? waitScreen()->mode() : -1, each.mode);
    }
}

TEST_F(LaunchTest, ImportsAgainWhenTheFirstImportWasNotSaved)
{
    const auto launchesAnImport = [this] {
        restart(QStringLiteral("1.0"));
        launch();
        EXPECT_TRUE(waitScreen() == nullptr || waitScreen()->mode() == 0);
        return waitScreen() != nullptr;
    };
    EXPECT_FALSE(launchesAnImport());
    defaults().setBool(true, Keys::kImportFailedKey);
    EXPECT_TRUE(launchesAnImport());
    CoreDataManager::sharedManager().managedObjectContext()->insert<Dish>();
    CoreDataManager::sharedManager().managedObjectContext()->saveOrKeepChanges();
    EXPECT_FALSE(launchesAnImport()) << "a later save took the dishes along";
}

class StoreProblemTest : public LaunchTest
{
protected:
    [[nodiscard]] QString path() const { return platform_.documentsFolder() + QStringLiteral("/Diet.sqlite"); }
    void launchOver(const QByteArray &content)
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        launchAndSettle();
    }
    void launchAndSettle()
    {
        launch();
        CoreDataManager::sharedManager().persistentStoreCoordinator()->waitForBackgroundWork();
        turnEventLoop();
    }
};

TEST_F(StoreProblemTest, ADamagedStoreIsToldAndMayBeSetAside)
{
    startDiet();
    defaults().setInteger(3, Keys::kPeriod1Key);
    launchOver("no database");
    const ShownAlert *alert = AlertCenter::sharedCenter().current();
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->title(), QStringLiteral("Не удалось открыть дневник"));
    EXPECT_TRUE(alert->message().contains(path()));
    EXPECT_TRUE(alert->message().contains(QStringLiteral("«Diet.sqlite.damaged-1»")));
    ASSERT_EQ(alert->buttonTitles().size(), 2);
    AlertCenter::sharedCenter().current()->answer(0);
    EXPECT_TRUE(QFile::exists(path() + QStringLiteral(".damaged-1")));
    ASSERT_NE(waitScreen(), nullptr);
    EXPECT_EQ(waitScreen()->mode(), 0) << "the catalogue is imported into the new store";
    const auto days = CoreDataManager::sharedManager().managedObjectContext()->fetch<DietDay>();
    EXPECT_EQ(days.value().size(), 3U) << "the plan stays";
    EXPECT_EQ(AlertCenter::sharedCenter().current(), nullptr);
}

TEST_F(StoreProblemTest, QuittingLeavesTheFile)
{
    int quits = 0;
    launchOver("no database");
    QObject::connect(delegate_.get(), &AppDelegate::quitRequested, [&] { ++quits; });
    ASSERT_NE(AlertCenter::sharedCenter().current(), nullptr);
    AlertCenter::sharedCenter().current()->cancel(); // as by Escape
    EXPECT_EQ(quits, 1);
    quit();
    EXPECT_EQ(QDir(platform_.documentsFolder()).entryList(QDir::Files), QStringList(QStringLiteral("Diet.sqlite")));
}

TEST_F(StoreProblemTest, OtherProblemsLeaveOnlyToQuit)
{
    ASSERT_TRUE(QDir().mkpath(path())); // a folder in the way
    launchAndSettle();
    const ShownAlert *alert = AlertCenter::sharedCenter().current();
    ASSERT_NE(alert, nullptr);
    EXPECT_TRUE(alert->message().startsWith(QStringLiteral("Нет доступа к файлу с вашими данными.")));
    EXPECT_TRUE(alert->message().contains(path()));
    EXPECT_EQ(alert->buttonTitles(), QStringList(QStringLiteral("Выйти из программы")));
}

TEST_F(LaunchTest, OnlyAReminderThatStartsTheProgramCountsTheBadgeDown)
{
    platform_.notifications().setApplicationIconBadgeNumber(7);
    launch();
    EXPECT_EQ(platform_.notifications().applicationIconBadgeNumber(), 7);

    LocalNotification notification;
    notification.badgeNumber = 3;
    notification.userInfo = {{QStringLiteral("kTimerID"), true}};
    quit();
    launch(phone, {notification});
    EXPECT_EQ(platform_.notifications().applicationIconBadgeNumber(), 7) << "the timer leaves it";

    notification.userInfo = {{QStringLiteral("id"), QStringLiteral("row 4")}};
    quit();
    launch(phone, {notification});
    EXPECT_EQ(platform_.notifications().applicationIconBadgeNumber(), 2);
    EXPECT_EQ(alertMessage(), QString());
}

TEST_F(LaunchTest, NotificationsWhileRunningAreAlerts)
{
    struct Case
    {
        QVariantMap userInfo;
        QString kind;
        bool timerStays;
    };
    const QList<Case> cases{{{{QStringLiteral("kTimerID"), true}}, QStringLiteral("timer"), false},
                            {{{QStringLiteral("id"), QStringLiteral("4")}}, QStringLiteral("reminder"), true},
                            {{}, QStringLiteral("reminder"), true}};
    launch();
    (void)CoreDataManager::sharedManager().purhaseIngredients(); // waits for the store, which has something to log
    for (const Case &each : cases) {
        SCOPED_TRACE(each.kind.toStdString());
        platform_.notifications().setApplicationIconBadgeNumber(5);
        defaults().setValue(platform_.date(2024, 3, 7, 11), Keys::kTimerKey);
        LocalNotification notification;
        notification.fireDate = platform_.clock().now();
        notification.alertBody = QStringLiteral("Пора выпить воды");
        notification.badgeNumber = 9;
        notification.userInfo = each.userInfo;
        platform_.notifications().scheduleLocalNotification(notification);
        LogCapture log;
        platform_.notifications().fireFirst();
        EXPECT_EQ(log.take(), QStringList({QStringLiteral("recive local not"), each.kind}));
        EXPECT_EQ(defaults().valueForKey(Keys::kTimerKey).isValid(), each.timerStays);
        EXPECT_EQ(platform_.notifications().applicationIconBadgeNumber(), 5);
        EXPECT_EQ(alertMessage(), QStringLiteral("Пора выпить воды"));
        EXPECT_TRUE(AlertCenter::sharedCenter().current()->title().isNull());
        answerAlert(QStringLiteral("ОК"));
    }
    quit();
    LocalNotification late;
    late.fireDate = platform_.clock().now();
    platform_.notifications().scheduleLocalNotification(late);
    platform_.notifications().fireFirst();
    EXPECT_EQ(alertMessage(), QString()) << "nobody is there any more";
}

TEST_F(LaunchTest, APasscodeLocksAtLaunchAndUntilTheRightOneIsEntered)
{
    launch();
    EXPECT_EQ(window().lockScreen(), nullptr);
    delegate_->applicationDidEnterBackground();
    EXPECT_EQ(window().lockScreen(), nullptr);
    quit();

    defaults().setValue(QStringLiteral("0412"), Keys::kPasscodeKey);
    defaults().removeObjectForKey(Keys::kAppVersionKey);
    launch();
    ASSERT_NE(lock(), nullptr) << "over the wait screen, too";
    EXPECT_NE(waitScreen(), nullptr);
    EXPECT_EQ(lock()->type(), BKPasscodeViewController::Type::Check);
    EXPECT_FALSE(window().back());
    LogCapture log;
    enter({4, 1, 2, 0});
    EXPECT_EQ(log.take().count(QStringLiteral("FAILED")), 1);
    ASSERT_NE(lock(), nullptr);
    enter({0, 4, 1, 2});
    EXPECT_EQ(window().lockScreen(), nullptr);

    delegate_->applicationDidEnterBackground();
    EXPECT_NE(lock(), nullptr);
    delegate_->applicationWillEnterForeground();
    EXPECT_NE(lock(), nullptr) << "to be met on the return";
    defaults().setValue(QStringLiteral("9999"), Keys::kPasscodeKey);
    enter({0, 4, 1, 2});
    EXPECT_NE(lock(), nullptr);
    enter({9, 9, 9, 9});
    EXPECT_EQ(window().lockScreen(), nullptr);
}

TEST_F(LaunchTest, WhatIsNotSavedYetIsWhenTheProgramIsLeft)
{
    launch();
    const auto unsaved = [] { return CoreDataManager::sharedManager().managedObjectContext(); };
    unsaved()->insert<Dish>();
    delegate_->applicationDidEnterBackground();
    EXPECT_FALSE(unsaved()->hasChanges());
    unsaved()->insert<Dish>();
    delegate_->applicationWillTerminate();
    EXPECT_FALSE(unsaved()->hasChanges());
    restart(QStringLiteral("1.0"));
    EXPECT_EQ(unsaved()->fetchOrLog<Dish>().size(), 2U);
}

TEST_F(LaunchTest, ForegroundAndTerminationWriteTheSettings)
{
    launch();
    const auto onDisk = [this] {
        return PropertyList::read(platform_.defaultsPath()).value_or(QVariant()).toMap().value(QStringLiteral("Вес"));
    };
    defaults().setInteger(80, QStringLiteral("Вес"));
    delegate_->applicationWillEnterForeground();
    EXPECT_EQ(onDisk(), QVariant(80LL));
    defaults().setInteger(79, QStringLiteral("Вес"));
    delegate_->applicationWillTerminate();
    EXPECT_EQ(onDisk(), QVariant(79LL));
}

TEST_F(LaunchTest, LaunchesAndReturnsCountForTheRating)
{
    for (int use = 1; use < 10; ++use) {
        launch();
        quit();
    }
    launch();
    EXPECT_EQ(alertMessage(), QString()) << "ten uses, but all in one day";
    platform_.clock().advance(86'400);
    delegate_->applicationWillEnterForeground();
    EXPECT_NE(AlertCenter::sharedCenter().current(), nullptr);
}

class OtherLanguageTest : public AppFixture
{
protected:
    OtherLanguageTest()
        : AppFixture({.language = QStringLiteral("de")})
    {
    }
};

TEST_F(OtherLanguageTest, ADeviceThatIsNotRussianStartsInEnglish)
{
    launch();
    EXPECT_EQ(defaults().valueForKey(Keys::kLangluageKey), QVariant(1LL));
    EXPECT_EQ(menu().title(), localized(QStringLiteral("Диета Кесто")));
    EXPECT_NE(mainTitle(), QStringLiteral("Калькулятор веса по Кесто"));
}

} // namespace

} // namespace kesto::test
