#include "Screens.h"

#include "components/PopoverController.h"
#include "components/SideMenuContainer.h"

namespace kesto::test
{

class OwnershipTest : public ScreensTest
{
};

TEST_F(OwnershipTest, AScreenStaysWhileAViewStillDrawsIt)
{
    NavigationController *stack = stackInWindow("a");
    stack->pushViewController(screen("b"), true);
    QPointer<ViewController> b = stack->topViewController();
    b->attachView();
    b->attachView(); // the coming view before the leaving one
    b->detachView();
    events();
    stack->popViewController(true);
    EXPECT_EQ(events(), "b -, a +, a .");
    ASSERT_TRUE(b);
    EXPECT_EQ(b->navigationController(), nullptr);
    b->close(); // nowhere to go any more
    EXPECT_EQ(events(), "");
    b->detachView();
    EXPECT_EQ(events(), "b x");
}

TEST_F(OwnershipTest, WhatAStackHoldsGoesOnceWithIt)
{
    NavigationController *stack = stackInWindow("a");
    stack->pushViewController(screen("b"), true);
    stack->topViewController()->presentPopover(std::make_unique<NavigationController>(screen("p")), {});
    stack->presentViewController(screen("q"), true);
    const QPointer<ViewController> popped = stack->topViewController();
    popped->attachView(); // drawn to the end
    stack->popViewController(false);
    events();
    window().setRootViewController(screen("z"));
    const std::string rest = events();
    for (const char *gone : {"a x", "b x", "q x"})
        EXPECT_EQ(QString::fromStdString(rest).count(QLatin1String(gone)), 1) << gone << " in " << rest;
    EXPECT_FALSE(popped);
    window().setRootViewController(nullptr);
    EXPECT_EQ(events(), "z -, z x");
}

TEST_F(OwnershipTest, AViewMayDrawADismissedPopoverOrChainToTheEnd)
{
    NavigationController *stack = stackInWindow("a");
    QPointer<PopoverController> popover = stack->topViewController()->presentPopover(screen("p"), {});
    popover->content()->attachView();
    popover->dismiss();
    settle();
    ASSERT_TRUE(popover);
    ASSERT_TRUE(popover->content());
    popover->content()->detachView();
    settle();
    EXPECT_FALSE(popover);

    // The upper of two dismissed screens is drawn longer than the lower one.
    stack->presentViewController(screen("q"), true);
    stack->presentViewController(screen("r"), true);
    const QPointer<ViewController> upper = window().presentedViewControllers().last();
    upper->attachView();
    stack->dismissViewController(true);
    events();
    ASSERT_TRUE(upper);
    upper->detachView();
    EXPECT_EQ(events(), "r x");
}

TEST_F(OwnershipTest, AScreenMayCloseItselfFromItsOwnButton)
{
    NavigationController *stack = stackInWindow("a");
    stack->pushViewController(screen("b"), true);
    ViewController *b = stack->topViewController();
    b->setRightBarButtonItem(BarButtonItem::withImage(QStringLiteral("Plus.png"), [b] {
        b->setRightBarButtonItem(nullptr);
        b->close();
    }));
    EXPECT_EQ(b->rightBarButtonItems().first()->accessibleName(), QStringLiteral("Закрыть"));
    events();
    BarButtonItem *button = b->rightBarButtonItems().first();
    button->setEnabled(false);
    button->trigger();
    EXPECT_EQ(events(), "");
    button->setEnabled(true);
    button->trigger();
    EXPECT_EQ(events(), "b -, a +, a ., b x");
}

TEST_F(OwnershipTest, ABorrowedButtonLeavesTheBarWhenItIsDestroyed)
{
    const auto one = screen("a");
    auto borrowed = std::make_unique<BarButtonItem>();
    one->setMenuBarButtonItem(borrowed.get());
    EXPECT_EQ(one->leftBarButtonItems().size(), 1);
    int changes = 0;
    QObject::connect(one.get(), &ViewController::barButtonItemsChanged, one.get(), [&] { ++changes; });
    borrowed.reset();
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(one->leftBarButtonItems().isEmpty());
}

TEST_F(OwnershipTest, ThePlatformTakesTheWindowsScreensAlongWithoutAWord)
{
    NavigationController *stack = stackInWindow("a");
    stack->pushViewController(screen("b"), false);
    stack->presentViewController(screen("p"), false);
    events();
    platform.restart();
    diary.sort();
    EXPECT_EQ(diary.join(QStringLiteral(", ")), QStringLiteral("a x, b x, p x"));
}

} // namespace kesto::test
