#include "Screens.h"

#include "components/PopoverController.h"
#include "components/SideMenuContainer.h"
#include "components/SplitViewController.h"
#include "components/TabBarController.h"

namespace kesto::test
{

class NavigationTest : public ScreensTest
{
};

TEST_F(NavigationTest, APushedScreenCoversAndAPoppedOneUncovers)
{
    NavigationController *stack = stackInWindow("a");
    stack->pushViewController(screen("b"), true);
    EXPECT_EQ(events(), "b load, a -, b +, b .");
    stack->pushViewController(screen("c"), true);
    EXPECT_EQ(events(), "c load, b -, c +, c .");
    EXPECT_EQ(stack->backButtonTitle(), QStringLiteral("b"));
    stack->popToRootViewController(false);
    EXPECT_EQ(events(), "c -, a +, a ., b x, c x");
    stack->popViewController(true);
    EXPECT_EQ(events(), "");
    EXPECT_FALSE(stack->canGoBack());
    EXPECT_TRUE(stack->backButtonTitle().isNull());
}

TEST_F(NavigationTest, AStackMadeInOneGoLoadsOnlyWhatIsSeen)
{
    NavigationController *stack = stackInWindow("a");
    std::vector<std::unique_ptr<ViewController>> screens;
    screens.push_back(screen("b"));
    screens.push_back(screen("c"));
    stack->setViewControllers(std::move(screens), false);
    EXPECT_EQ(events(), "c load, a -, c +, c ., a x");
    stack->topViewController()->close();
    EXPECT_EQ(events(), "b load, c -, b +, b ., c x");
}

TEST_F(NavigationTest, TheBackButtonFollowsTheTitleBelow)
{
    NavigationController *stack = stackInWindow("a");
    stack->pushViewController(screen("b"), false);
    int changes = 0;
    QObject::connect(stack, &NavigationController::backButtonTitleChanged, stack, [&] { ++changes; });
    stack->rootViewController()->setTitle(QStringLiteral("Салаты"));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(stack->backButtonTitle(), QStringLiteral("Салаты"));
    stack->rootViewController()->setTitle({});
    EXPECT_EQ(stack->backButtonTitle(), localized(QStringLiteral("Back")));
}

TEST_F(NavigationTest, AScreenThatPushesWhileItAppearsFinishesAppearingFirst)
{
    NavigationController *stack = stackInWindow("a");
    auto eager = screen("b");
    eager->onAppear = [&] { stack->pushViewController(screen("c"), false); };
    stack->pushViewController(std::move(eager), false);
    EXPECT_EQ(stack->viewControllers().size(), 3);
    EXPECT_EQ(events(), "b load, a -, b +, b ., c load, b -, c +, c .");
}

TEST_F(NavigationTest, APresentedScreenCoversTheWholeWindowAndTheNextOneComesOnTop)
{
    NavigationController *stack = stackInWindow("a");
    ViewController *a = stack->topViewController();
    a->presentViewController(std::make_unique<NavigationController>(screen("p")), true);
    EXPECT_EQ(events(), "p load, a -, p +, p .");
    ViewController *p = a->presentedViewController();
    EXPECT_EQ(p->presentingViewController(), stack);
    a->presentViewController(screen("q"), true); // from below, and yet on top
    EXPECT_EQ(events(), "q load, p -, q +, q .");
    ASSERT_EQ(window().presentedViewControllers().size(), 2);

    window().presentedViewControllers().last()->dismissViewController(true);
    EXPECT_EQ(events(), "q -, p +, p ., q x");
    a->presentViewController(screen("r"), false);
    events();
    a->dismissViewController(true); // all that is above it
    EXPECT_EQ(events(), "r -, a +, a ., p x, r x");
    EXPECT_TRUE(window().presentedViewControllers().isEmpty());
    a->dismissViewController(true);
    EXPECT_EQ(events(), "");
}

TEST_F(NavigationTest, APopoverCoversNothingAndGoesWithItsOwner)
{
    NavigationController *stack = stackInWindow("a");
    ViewController *a = stack->topViewController();
    PopoverController *popover =
        a->presentPopover(std::make_unique<NavigationController>(screen("p")), QStringLiteral("button"));
    EXPECT_EQ(events(), "p load, p +, p .");
    EXPECT_EQ(window().popovers(), QList<PopoverController *>{popover});
    auto *inside = qobject_cast<NavigationController *>(popover->content());
    EXPECT_EQ(inside->topViewController()->popoverOwner(), a);
    EXPECT_EQ(inside->topViewController()->navigationController(), inside);

    inside->pushViewController(screen("q"), true);
    EXPECT_EQ(events(), "q load, p -, q +, q .");
    inside->topViewController()->close(); // back on its stack
    EXPECT_EQ(events(), "q -, p +, p ., q x");
    inside->topViewController()->close(); // out of the popover
    EXPECT_EQ(events(), "p -, p x");
    EXPECT_EQ(a->popover(), nullptr);

    a->presentPopover(screen("r"), {});
    a->presentPopover(screen("s"), {});
    EXPECT_EQ(events(), "r load, r +, r ., r -, s load, s +, s ., r x");
    stack->pushViewController(screen("b"), true);
    EXPECT_EQ(events(), "b load, a -, s -, b +, b ., s x");
    EXPECT_TRUE(window().popovers().isEmpty());
}

TEST_F(NavigationTest, OfTabsTheSelectedOneIsVisible)
{
    NavigationController *stack = stackInWindow("a");
    auto made = std::make_unique<TabBarController>();
    TabBarController *tabs = made.get();
    std::vector<std::unique_ptr<ViewController>> screens;
    for (const char *name : {"t0", "t1", "t2"})
        screens.push_back(screen(name));
    screens[1]->setTabBarItem(QStringLiteral("Вода"), QStringLiteral("water_1"));
    tabs->setViewControllers(std::move(screens));
    stack->pushViewController(std::move(made), false);
    EXPECT_EQ(events(), "t0 load, a -, t0 +, t0 .");
    EXPECT_EQ(tabs->viewControllers().at(0)->tabBarTitle(), QStringLiteral("t0"));
    EXPECT_EQ(tabs->viewControllers().at(1)->tabBarTitle(), QStringLiteral("Вода"));
    EXPECT_EQ(tabs->selectedViewController()->enclosing<NavigationController>(), stack);

    tabs->setSelectedIndex(2);
    EXPECT_EQ(events(), "t2 load, t0 -, t2 +, t2 .");
    for (int outside : {-1, 2, 3})
        tabs->setSelectedIndex(outside);
    EXPECT_EQ(events(), "");
    stack->pushViewController(screen("b"), false);
    tabs->setSelectedIndex(0); // behind it
    EXPECT_EQ(events(), "b load, t2 -, b +, b .");
    stack->popViewController(false);
    EXPECT_EQ(events(), "b -, t0 +, t0 ., b x");
    tabs->selectedViewController()->close(); // a tab leaves with its container
    EXPECT_EQ(events(), "t0 -, a +, a ., t0 x, t1 x, t2 x");
}

TEST_F(NavigationTest, TheSideMenuComesOverTheCentreAndLeavesWithTheNextOne)
{
    auto made = std::make_unique<SideMenuContainer>(std::make_unique<NavigationController>(screen("c")), screen("m"));
    SideMenuContainer *menu = made.get();
    window().setRootViewController(std::move(made));
    EXPECT_EQ(events(), "c load, c +, c .");

    auto *centre = qobject_cast<NavigationController *>(menu->centerViewController());
    ViewController *c = centre->topViewController();
    c->setLeftBarButtonItem(BarButtonItem::withTitle(QStringLiteral("own")));
    c->setShowsMenuIcon(true);
    ASSERT_EQ(c->leftBarButtonItems().size(), 2);
    EXPECT_EQ(c->leftBarButtonItems().first()->accessibleName(), QStringLiteral("Меню"));
    c->leftBarButtonItems().first()->trigger();
    EXPECT_TRUE(menu->isMenuOpen());
    EXPECT_EQ(events(), "m load, m +, m .");
    menu->setCenterViewController(std::make_unique<NavigationController>(screen("d")));
    EXPECT_FALSE(menu->isMenuOpen());
    EXPECT_EQ(events(), "d load, c -, m -, d +, d ., c x");
    menu->setCenterViewController(screen("e")); // with the menu closed
    EXPECT_EQ(events(), "e load, d -, e +, e ., d x");
}

class SplitDelegate : public SplitViewControllerDelegate
{
public:
    QStringList calls;
    void splitViewControllerWillHideMaster(SplitViewController &split, BarButtonItem &button) override
    {
        calls.append(QStringLiteral("hide"));
        button.setTitle(QStringLiteral("Диета Кесто"));
        split.detail()->setMenuBarButtonItem(&button);
    }
    void splitViewControllerWillShowMaster(SplitViewController &split, BarButtonItem &) override
    {
        calls.append(QStringLiteral("show"));
        split.detail()->setMenuBarButtonItem(nullptr);
    }
};

TEST_F(NavigationTest, InPortraitTheMasterHidesBehindAButton)
{
    window().setSize({1180, 820});
    auto made = std::make_unique<SplitViewController>(screen("m"), screen("d"));
    SplitViewController *split = made.get();
    SplitDelegate delegate;
    split->setDelegate(&delegate);
    window().setRootViewController(std::move(made));
    EXPECT_EQ(events(), "m load, d load, m +, d +, m ., d .");
    EXPECT_TRUE(delegate.calls.isEmpty());
    split->setMenuPopoverOpen(true); // it is there anyway
    EXPECT_FALSE(split->isMenuPopoverOpen());

    window().setSize({820, 1180});
    EXPECT_EQ(delegate.calls, QStringList{QStringLiteral("hide")});
    EXPECT_TRUE(split->isMasterHidden());
    ASSERT_EQ(split->detail()->leftBarButtonItems().size(), 1);
    split->detail()->leftBarButtonItems().first()->trigger();
    EXPECT_TRUE(split->isMenuPopoverOpen());
    split->setDetail(screen("e"));
    EXPECT_EQ(events(), "e load, d -, e +, e ., d x");
    EXPECT_TRUE(split->isMenuPopoverOpen());

    window().setSize({1180, 820});
    EXPECT_EQ(delegate.calls, (QStringList{QStringLiteral("hide"), QStringLiteral("show")}));
    EXPECT_FALSE(split->isMenuPopoverOpen());
    EXPECT_TRUE(split->detail()->leftBarButtonItems().isEmpty());
    EXPECT_EQ(events(), "");

    // Who comes when the master is hidden already hears of it.
    window().setSize({820, 1180});
    SplitDelegate late;
    split->setDelegate(&late);
    EXPECT_EQ(late.calls, QStringList{QStringLiteral("hide")});
    split->setDelegate(nullptr);
    window().setRootViewController(nullptr); // takes the button along
}

} // namespace kesto::test
