#include "components/Window.h"
#include "app/WindowFixture.h"
#include "components/SideMenuContainer.h"
#include "components/TableViewController.h"
#include "model/Dish.h"
#include "platform/LocalNotifications.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "platform/objectgraph/ManagedObjectContext.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

namespace kesto::test
{

namespace
{

using WindowTest = WindowFixture;

const QString preparing = QStringLiteral("Готовим базу рецептов…");
const QString calculator = QStringLiteral("Калькулятор веса по Кесто");
const QString menuTitle = QStringLiteral("Диета Кесто");

TEST_F(WindowTest, FirstFrameShowsWhatIsInFrontAndTheNextTheRest)
{
    prepare({});
    for (const bool menuOpen : {false, true}) {
        SCOPED_TRACE(menuOpen);
        start(Device::Phone, QSize(390, 844));
        qobject_cast<SideMenuContainer *>(program_->window().rootViewController())->setMenuOpen(menuOpen);
        const auto tables = [&] {
            QStringList found;
            (void)item(*program_->view().contentItem(), [&](const QQuickItem &each) {
                const auto *controller = each.property("controller").value<TableViewController *>();
                if (controller != nullptr && each.property("list").isValid())
                    found.append(controller->title());
                return false;
            });
            return found.join(u'|').toStdString();
        };
        std::string first;
        bool drawn = false;
        const Person user = person();
        QObject::connect(
            &program_->view(), &QQuickWindow::frameSwapped, &program_->view(),
            [&] {
                first = tables();
                drawn = user.sees(QAccessible::ListItem,
                                  menuOpen ? QStringLiteral("Список покупок") : QStringLiteral("Пол, Женский"));
            },
            Qt::SingleShotConnection);
        QSignalSpy frames(&program_->view(), &QQuickWindow::frameSwapped);
        ASSERT_TRUE(frames.wait());
        EXPECT_EQ(first, (menuOpen ? menuTitle : calculator).toStdString());
        EXPECT_TRUE(drawn);
        EXPECT_TRUE(QTest::qWaitFor([&] { return tables() == (calculator + u'|' + menuTitle).toStdString(); }))
            << tables();
    }
}

TEST_F(WindowTest, TheShorterSideChoosesTheArrangement)
{
    prepare({});
    for (const auto &[size, device, isTablet] : {std::tuple(QSize(599, 1000), std::optional<Device>(), false),
                                                 {QSize(1000, 599), {}, false},
                                                 {QSize(600, 1000), {}, true},
                                                 {QSize(1000, 600), {}, true},
                                                 {QSize(1000, 600), Device::Phone, false},
                                                 {QSize(599, 1000), Device::Tablet, true}}) {
        start(device, size);
        EXPECT_EQ(program_->window().isTablet(), isTablet) << size.width() << " x " << size.height();
    }
}

TEST_F(WindowTest, TheStartShowsItsPhases)
{
    prepare({});
    start(Device::Phone, QSize(390, 844));
    const auto drawn = [&] {
        QStringList names;
        (void)item(*program_->view().contentItem(), [&](const QQuickItem &each) {
            if (each.property("modelData").toMap().contains(QStringLiteral("dates")) && each.width() > 0)
                names.append(each.property("modelData").toMap().value(QStringLiteral("name")).toString());
            return false;
        });
        return names;
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return drawn().size() == 4; })) << "two phases, each in the bar and below it";
    EXPECT_EQ(drawn().value(0), QStringLiteral("Атака"));
}

TEST_F(WindowTest, FirstStartToTheMenuAndBackByPointer)
{
    start(Device::Phone, QSize(390, 844));
    const Person user = person();
    ASSERT_TRUE(user.waitsToSee(QAccessible::Indicator, preparing));
    EXPECT_FALSE(user.sees(QAccessible::Heading, calculator));
    ASSERT_TRUE(user.waitsUntilGone(QAccessible::Indicator, preparing));
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, calculator));
    EXPECT_GT(CoreDataManager::sharedManager().managedObjectContext()->fetchOrLog<Dish>({}).size(), 100U);
    EXPECT_EQ(Platform::current().userDefaults().stringForKey(Keys::kAppVersionKey), QStringLiteral("1.0"));

    ASSERT_TRUE(user.touches(QAccessible::Button, QStringLiteral("Меню")));
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, menuTitle));
    ASSERT_TRUE(user.touches(QAccessible::ListItem, QStringLiteral("Список покупок")));
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, QStringLiteral("Список покупок")));
    EXPECT_TRUE(user.waitsUntilGone(QAccessible::Heading, menuTitle)) << "the menu closes by itself";

    // On the menu's own stack, and back.
    ASSERT_TRUE(user.touches(QAccessible::Button, QStringLiteral("Меню")));
    ASSERT_TRUE(user.touches(QAccessible::ListItem, QStringLiteral("Рецепты блюд")));
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, QStringLiteral("Рецепты")));
    ASSERT_TRUE(user.touches(QAccessible::Button, menuTitle));
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, menuTitle));
    ASSERT_TRUE(user.touches(QAccessible::ListItem, calculator));
    EXPECT_TRUE(user.waitsToSee(QAccessible::Heading, calculator));

    // The next start has nothing to prepare.
    start(Device::Phone, QSize(390, 844));
    EXPECT_TRUE(person().waitsToSee(QAccessible::Heading, calculator));
    EXPECT_FALSE(person().sees(QAccessible::Indicator, preparing));
}

TEST_F(WindowTest, FirstStartToTheMenuAndBackByKeys)
{
    start(Device::Phone, QSize(390, 844));
    const Person user = person();
    ASSERT_TRUE(user.waitsToSee(QAccessible::Indicator, preparing));
    user.presses(Qt::Key_Escape);
    user.presses(Qt::Key_M, Qt::ControlModifier);
    EXPECT_TRUE(user.sees(QAccessible::Indicator, preparing)) << "it can't be left";
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, calculator));

    user.presses(Qt::Key_M, Qt::ControlModifier);
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, menuTitle));
    const QString cart = QStringLiteral("Список покупок");
    for (int step = 0; step < 12 && user.focus() != cart; ++step)
        user.presses(Qt::Key_Down);
    ASSERT_EQ(user.focus().toStdString(), cart.toStdString());
    user.presses(Qt::Key_Return);
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, cart));

    user.presses(Qt::Key_M, Qt::ControlModifier);
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, menuTitle));
    user.presses(Qt::Key_Escape);
    EXPECT_TRUE(user.waitsUntilGone(QAccessible::Heading, menuTitle));
    EXPECT_TRUE(user.sees(QAccessible::Heading, cart));
}

TEST_F(WindowTest, TheKeysUnlockAndAnswerWhatCameMeanwhile)
{
    struct Start
    {
        Device device;
        QSize size;
        bool prepares; ///< the screen that says so is up, too
    };
    for (const Start &way :
         {Start{Device::Phone, QSize(390, 844), false}, Start{Device::Tablet, QSize(1180, 820), false},
          Start{Device::Phone, QSize(390, 844), true}, Start{Device::Tablet, QSize(820, 1180), true}}) {
        SCOPED_TRACE(testing::Message() << way.size.width() << (way.prepares ? " preparing" : ""));
        program_.reset();
        ASSERT_TRUE(QDir(root_.filePath(QStringLiteral("data"))).removeRecursively());
        prepare({});
        {
            UserDefaults defaults(root_.filePath(QStringLiteral("data/UserDefaults.plist")));
            defaults.setValue(QStringLiteral("1234"), Keys::kPasscodeKey);
            if (way.prepares)
                defaults.setValue(QStringLiteral("0.9"), Keys::kAppVersionKey);
            ASSERT_TRUE(defaults.synchronize());
        }
        start(way.device, way.size);
        const Person user = person();
        ASSERT_TRUE(QTest::qWaitFor([&] { return program_->view().isActive(); }));
        LocalNotification reminder;
        reminder.alertBody = QStringLiteral("Пора обедать");
        program_->delegate().application(reminder);
        for (const Qt::Key key : {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4})
            user.presses(key);
        ASSERT_EQ(program_->window().lockScreen(), nullptr);
        ASSERT_TRUE(user.waitsToSee(QAccessible::AlertMessage, reminder.alertBody));
        user.presses(Qt::Key_Return);
        EXPECT_TRUE(user.waitsUntilGone(QAccessible::AlertMessage, reminder.alertBody));
        ASSERT_TRUE(user.waitsUntilGone(QAccessible::Indicator, preparing));
        ASSERT_TRUE(QTest::qWaitFor([&] { return program_->window().presentedViewControllers().isEmpty(); }));
        user.presses(Qt::Key_Down);
        EXPECT_FALSE(user.focus().isEmpty()) << "they are in the screen behind";
    }
}

TEST_F(WindowTest, ATabletShowsTheMenuBesideItsScreens)
{
    start(Device::Tablet, QSize(1180, 820));
    const Person user = person();
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, menuTitle));
    EXPECT_TRUE(user.sees(QAccessible::Heading, calculator));
    ASSERT_TRUE(user.touches(QAccessible::ListItem, QStringLiteral("Полезные советы")));
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, QStringLiteral("Полезные советы")));
    EXPECT_TRUE(user.sees(QAccessible::Heading, calculator)) << "it came on the menu's own stack";

    program_->view().resize(820, 1180);
    ASSERT_TRUE(user.waitsUntilGone(QAccessible::Heading, QStringLiteral("Полезные советы")));
    ASSERT_TRUE(user.touches(QAccessible::Button, menuTitle));
    EXPECT_TRUE(user.waitsToSee(QAccessible::Heading, QStringLiteral("Полезные советы")));
}

} // namespace

} // namespace kesto::test
