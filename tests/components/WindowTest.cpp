#include "Screens.h"

#include "components/BKPasscodeLockScreenManager.h"
#include "components/PopoverController.h"
#include "components/ProgressIndicator.h"
#include "components/SideMenuContainer.h"

namespace kesto::test
{

class WindowTest : public ScreensTest
{
};

TEST_F(WindowTest, TheShorterSideMakesATabletUnlessItIsForced)
{
    const struct
    {
        QSizeF size;
        bool tablet;
        bool portrait;
    } cases[] = {{{390, 844}, false, true}, {{844, 390}, false, false}, {{599, 2000}, false, true},
                 {{600, 600}, true, true},  {{1180, 820}, true, false}, {{820, 1180}, true, true}};
    for (const auto &each : cases) {
        window().setDevice(Window::Device::BySize);
        window().setSize(each.size);
        EXPECT_EQ(window().isTablet(), each.tablet) << each.size.width() << " × " << each.size.height();
        EXPECT_EQ(window().isPortrait(), each.portrait) << each.size.width() << " × " << each.size.height();
        window().setDevice(Window::Device::Phone);
        EXPECT_FALSE(window().isTablet());
        window().setDevice(Window::Device::Tablet);
        EXPECT_TRUE(window().isTablet());
    }
}

TEST_F(WindowTest, BackLeavesTheTopmostFirst)
{
    EXPECT_FALSE(window().back()); // an empty window
    auto made = std::make_unique<SideMenuContainer>(std::make_unique<NavigationController>(screen("c")),
                                                    std::make_unique<NavigationController>(screen("m")));
    SideMenuContainer *menu = made.get();
    window().setRootViewController(std::move(made));
    auto *centre = qobject_cast<NavigationController *>(menu->centerViewController());
    auto *left = qobject_cast<NavigationController *>(menu->leftMenuViewController());
    centre->pushViewController(screen("d"), false);
    menu->setMenuOpen(true);
    left->pushViewController(screen("n"), false);
    auto held = screen("p");
    held->closable = false;
    Screen *p = held.get();
    centre->presentViewController(std::make_unique<NavigationController>(std::move(held)), false);
    p->presentPopover(std::make_unique<NavigationController>(screen("q")), {});
    qobject_cast<NavigationController *>(p->popover()->content())->pushViewController(screen("r"), false);
    events();

    EXPECT_TRUE(window().back());
    EXPECT_EQ(events(), "r -, q +, q ., r x");
    EXPECT_TRUE(window().back());
    EXPECT_EQ(events(), "q -, q x");
    EXPECT_FALSE(window().back()); // p does not let go
    p->closable = true;
    EXPECT_TRUE(window().back());
    EXPECT_EQ(events(), "p -, d +, n +, d ., n ., p x");
    EXPECT_TRUE(window().back());
    EXPECT_EQ(events(), "n -, m +, m ., n x");
    EXPECT_TRUE(window().back());
    EXPECT_EQ(events(), "m -");
    EXPECT_TRUE(window().back());
    EXPECT_EQ(events(), "d -, c +, c ., d x");
    EXPECT_FALSE(window().back());
    EXPECT_EQ(events(), "");
}

class LockDelegate : public BKPasscodeLockScreenManagerDelegate
{
public:
    explicit LockDelegate(QStringList &diary)
        : diary_(diary)
    {
    }
    bool locked = false;
    bool lockScreenManagerShouldShowLockScreen(BKPasscodeLockScreenManager &) override { return locked; }
    std::unique_ptr<ViewController> lockScreenManagerPasscodeViewController(BKPasscodeLockScreenManager &) override
    {
        return std::make_unique<NavigationController>(std::make_unique<Screen>(QStringLiteral("lock"), diary_));
    }

private:
    QStringList &diary_;
};

TEST_F(WindowTest, TheLockLiesOverEverythingUntilItIsDismissed)
{
    NavigationController *stack = stackInWindow("a");
    BKPasscodeLockScreenManager &manager = BKPasscodeLockScreenManager::sharedManager();
    manager.showLockScreen(false); // nobody to ask
    LockDelegate delegate(diary);
    manager.setDelegate(&delegate);
    manager.showLockScreen(false);
    EXPECT_EQ(events(), "");
    EXPECT_FALSE(manager.isLockScreenShown());

    delegate.locked = true;
    manager.showLockScreen(false);
    EXPECT_EQ(events(), "lock load, lock +, lock .");
    manager.showLockScreen(false); // once is enough
    EXPECT_EQ(events(), "");
    stack->pushViewController(screen("b"), false);
    events();
    EXPECT_FALSE(window().back());

    auto *lock = qobject_cast<NavigationController *>(window().lockScreen());
    lock->topViewController()->dismissViewController(true);
    EXPECT_TRUE(lock->isTransitionAnimated());
    EXPECT_EQ(events(), "lock -, lock x");
    EXPECT_FALSE(manager.isLockScreenShown());
    manager.showLockScreen(true);
    EXPECT_EQ(events(), "lock load, lock +, lock .");
    window().setRootViewController(nullptr);
    EXPECT_EQ(window().lockScreen(), nullptr);
}

TEST_F(WindowTest, TheProgressIndicatorStaysUntilTheLastOneHidesIt)
{
    ProgressIndicator &progress = ProgressIndicator::sharedIndicator();
    progress.hide();
    progress.show(QStringLiteral("one"));
    progress.show(QStringLiteral("two"));
    EXPECT_EQ(progress.text(), QStringLiteral("two"));
    progress.hide();
    EXPECT_TRUE(progress.isVisible());
    EXPECT_EQ(progress.text(), QStringLiteral("one"));
    progress.hide();
    EXPECT_FALSE(progress.isVisible());
    progress.hide();
    progress.show();
    EXPECT_TRUE(progress.isVisible());
}

} // namespace kesto::test
