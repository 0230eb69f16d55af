#include "app/AppFixture.h"

#include "components/NavigationController.h"
#include "components/SideMenuContainer.h"
#include "components/TitleStepper.h"
#include "plan/CalendarViewController.h"

namespace kesto::test
{

namespace
{

class RootMenuTest : public AppFixture
{
protected:
    static SplitViewController &split() { return *qobject_cast<SplitViewController *>(window().rootViewController()); }
    /// The numbers of the rows that stand out.
    QString selectedRows()
    {
        menu().loadViewIfNeeded();
        QStringList rows;
        for (int row = 0; row < menu().numberOfRowsInSection(0); ++row) {
            if (menu().table()->rowAt({0, row}).selected)
                rows.append(QString::number(row));
        }
        return rows.join(u' ');
    }
};

TEST_F(RootMenuTest, LeadsToEverySection)
{
    const QStringList titles{QStringLiteral("О диете Кесто"),
                             QStringLiteral("Этапы диеты"),
                             QStringLiteral("Допустимые продукты"),
                             QStringLiteral("Рецепты блюд"),
                             QStringLiteral("Калькулятор веса по Кесто"),
                             QStringLiteral("График контроля веса"),
                             QStringLiteral("Календарь диеты"),
                             QStringLiteral("Дневник диеты"),
                             QStringLiteral("Список покупок"),
                             QStringLiteral("Избранные рецепты"),
                             QStringLiteral("Пришлите свой рецепт"),
                             QStringLiteral("Полезные советы")};
    const QHash<int, QString> onMenuStack{{3, QStringLiteral("Рецепты")}, {11, titles[11]}};
    startDiet();
    defaults().setValue(QStringList(QStringLiteral("Сырники")), Keys::kFavoriteDishesKey);
    for (const QSizeF &size : {phone, tabletLandscape}) {
        SCOPED_TRACE(size == phone ? "phone" : "tablet");
        quit();
        launch(size);
        auto *container = qobject_cast<SideMenuContainer *>(window().rootViewController());
        menu().loadViewIfNeeded();
        ASSERT_EQ(menu().numberOfRowsInSection(0), titles.size());
        for (int row = 0; row < titles.size(); ++row) {
            SCOPED_TRACE(titles[row].toStdString());
            const TableRow shown = menu().table()->rowAt({0, row});
            EXPECT_EQ(shown.title, titles[row]);
            EXPECT_EQ(shown.image, QString::number(row) + QStringLiteral(".png"));

            if (container != nullptr)
                container->setMenuOpen(true);
            const QPointer<ViewController> before = mainScreen();
            menu().selectRow(0, row);
            NavigationController &stack = *menu().navigationController();
            if (onMenuStack.contains(row)) {
                EXPECT_EQ(stack.viewControllers().size(), 2);
                EXPECT_EQ(stack.topViewController()->title(), onMenuStack[row]);
                EXPECT_EQ(mainScreen(), before);
                stack.popToRootViewController(false);
                continue;
            }
            EXPECT_EQ(stack.viewControllers().size(), 1);
            EXPECT_NE(mainScreen(), before);
            EXPECT_EQ(mainTitle(), titles[row]);
            if (container != nullptr) {
                EXPECT_FALSE(container->isMenuOpen());
                EXPECT_TRUE(mainScreen()->showsMenuIcon());
            } else {
                EXPECT_EQ(selectedRows(), QString::number(row));
                EXPECT_FALSE(mainScreen()->showsMenuIcon());
            }
        }
        EXPECT_EQ(AlertCenter::sharedCenter().current(), nullptr);
    }
}

TEST_F(RootMenuTest, SaysWhyASectionIsNotThereYet)
{
    for (const QSizeF &size : {phone, tabletPortrait}) {
        quit();
        launch(size);
        menu().loadViewIfNeeded();
        const QPointer<ViewController> before = mainScreen();
        menu().selectRow(0, 6);
        EXPECT_EQ(alertMessage(), localized(QStringLiteral("ошибка календарь")));
        EXPECT_TRUE(AlertCenter::sharedCenter().current()->title().isEmpty());
        answerAlert(QStringLiteral("ОК"));
        menu().selectRow(0, 9);
        EXPECT_EQ(alertMessage(), QStringLiteral("У вас нет избранных рецептов"));
        answerAlert(QStringLiteral("ОК"));
        EXPECT_EQ(mainScreen(), before);
        EXPECT_EQ(menu().navigationController()->viewControllers().size(), 1);

        defaults().setValue(QStringList(), Keys::kFavoriteDishesKey);
        menu().selectRow(0, 9);
        EXPECT_EQ(alertMessage(), QStringLiteral("У вас нет избранных рецептов")) << "an empty list is none";
        answerAlert(QStringLiteral("ОК"));
    }
}

TEST_F(RootMenuTest, BarButtonsOpenInformationAndSettingsAndCloseThem)
{
    launch();
    menu().loadViewIfNeeded();
    ASSERT_EQ(menu().leftBarButtonItems().size(), 1);
    ASSERT_EQ(menu().rightBarButtonItems().size(), 1);
    EXPECT_EQ(menu().title(), QStringLiteral("Диета Кесто"));
    EXPECT_EQ(menu().leftBarButtonItems()[0]->image(), QStringLiteral("info_icon.png"));
    EXPECT_EQ(menu().rightBarButtonItems()[0]->image(), QStringLiteral("seting.png"));
    for (BarButtonItem *button : {menu().leftBarButtonItems()[0], menu().rightBarButtonItems()[0]}) {
        button->trigger();
        ASSERT_EQ(window().presentedViewControllers().size(), 1);
        auto *stack = qobject_cast<NavigationController *>(window().presentedViewControllers()[0]);
        ASSERT_NE(stack, nullptr);
        EXPECT_FALSE(stack->topViewController()->title().isEmpty());
        ASSERT_EQ(stack->topViewController()->leftBarButtonItems().size(), 1);
        stack->topViewController()->leftBarButtonItems()[0]->trigger();
        EXPECT_TRUE(window().presentedViewControllers().isEmpty());
        turnEventLoop();
    }
}

TEST_F(RootMenuTest, ThanksForARecipeOnceInTheProgramsLife)
{
    launch();
    menu().dishSucsesfullySended();
    EXPECT_EQ(AlertCenter::sharedCenter().current()->title(), QStringLiteral("Спасибо"));
    EXPECT_EQ(alertMessage(), QStringLiteral("Большое спасибо за ваше сотрудничество"));
    answerAlert(QStringLiteral("ОК"));
    menu().dishSucsesfullySended();
    EXPECT_EQ(AlertCenter::sharedCenter().current(), nullptr);
    restart(QStringLiteral("1.0"));
    launch();
    menu().dishSucsesfullySended();
    EXPECT_EQ(AlertCenter::sharedCenter().current(), nullptr);
    EXPECT_EQ(defaults().valueForKey(Keys::kDishSendedKey), QVariant(true));
}

TEST_F(RootMenuTest, ATabletStartsWithAScreenInTheDetail)
{
    for (const QSizeF &size : {tabletLandscape, tabletPortrait}) {
        quit();
        defaults().removeObjectForKey(Keys::kStartDietDateKey);
        launch(size);
        EXPECT_EQ(mainTitle(), QStringLiteral("Калькулятор веса по Кесто"));
        EXPECT_EQ(selectedRows(), QStringLiteral("4"));
        quit();
        startDiet();
        launch(size);
        EXPECT_EQ(mainTitle(), QStringLiteral("Календарь диеты"));
        EXPECT_EQ(selectedRows(), QStringLiteral("6"));
    }
    // Once only: what was opened since stays when the menu is covered and comes back.
    menu().selectRow(0, 8);
    menu().showSettings();
    EXPECT_FALSE(menu().isVisible());
    window().rootViewController()->dismissViewController(false);
    EXPECT_TRUE(menu().isVisible());
    EXPECT_EQ(mainTitle(), QStringLiteral("Список покупок"));
    EXPECT_EQ(selectedRows(), QStringLiteral("8"));
}

TEST_F(RootMenuTest, WhatTheMenusOwnStackOpensBelongsToItsRow)
{
    for (const QSizeF &size : {tabletLandscape, tabletPortrait, phone}) {
        quit();
        launch(size);
        menu().selectRow(0, 3);
        menu().openDetailViewController(std::make_unique<ViewController>());
        menu().navigationController()->popToRootViewController(false);
        EXPECT_EQ(selectedRows(), size == phone ? QString() : QStringLiteral("3"));
        menu().selectRow(0, 8);
        EXPECT_EQ(selectedRows(), size == phone ? QString() : QStringLiteral("8"));
    }
}

TEST_F(RootMenuTest, InPortraitAButtonOpensTheMenuOfATablet)
{
    launch(tabletPortrait);
    const auto button = [] {
        const QList<BarButtonItem *> items = mainScreen()->leftBarButtonItems();
        return items.isEmpty() ? nullptr : items[0];
    };
    ASSERT_NE(button(), nullptr);
    EXPECT_EQ(button()->title(), QStringLiteral("Диета Кесто"));
    button()->trigger();
    EXPECT_TRUE(split().isMenuPopoverOpen());

    menu().selectRow(0, 5);
    EXPECT_FALSE(split().isMenuPopoverOpen());
    EXPECT_EQ(mainTitle(), QStringLiteral("График контроля веса"));
    ASSERT_NE(button(), nullptr) << "the new screen takes the button over";
    EXPECT_EQ(button()->title(), QStringLiteral("Диета Кесто"));

    window().setSize(tabletLandscape);
    EXPECT_EQ(button(), nullptr);
    menu().selectRow(0, 8);
    EXPECT_EQ(button(), nullptr);
    window().setSize(tabletPortrait);
    ASSERT_NE(button(), nullptr);
    turnEventLoop(); // the screens that were replaced end, the button does not
    button()->trigger();
    EXPECT_TRUE(split().isMenuPopoverOpen());
}

TEST_F(RootMenuTest, TheCalendarLeadsToTheDayAndItsJournal)
{
    startDiet();
    platform_.clock().set(platform_.date(2024, 3, 7, 12));
    launch();
    auto *calendar = qobject_cast<CalendarViewController *>(mainScreen());
    ASSERT_NE(calendar, nullptr);
    const NavigationController *stack = calendar->navigationController();
    calendar->footer()->openJornal();
    EXPECT_EQ(stack->topViewController()->title(), QStringLiteral("Дневник диеты"));
    stack->topViewController()->close();
    calendar->openDaySettings();
    EXPECT_EQ(stack->topViewController()->title(), QStringLiteral("07 марта"));

    // A journal that is replaced has left its day when the calendar looks.
    menu().openRow(7);
    EXPECT_EQ(mainScreen()->titleStepper()->text(), QStringLiteral("7 мар."));
    menu().openRow(6);
    calendar = qobject_cast<CalendarViewController *>(mainScreen());
    ASSERT_NE(calendar, nullptr);
    const CalendarMonth &month = *calendar->month();
    EXPECT_FALSE(month.cells()[month.indexOf(platform_.date(2024, 3, 7))].hasJornal);
}

TEST_F(RootMenuTest, OtherScreensReachTheMainContentThroughTheShell)
{
    EXPECT_EQ(Shell::current(), nullptr);
    startDiet();
    for (const QSizeF &size : {phone, tabletLandscape}) {
        launch(size);
        ASSERT_EQ(Shell::current(), &menu());
        auto screen = std::make_unique<ViewController>();
        screen->setTitle(QStringLiteral("Салаты"));
        Shell::current()->openDetailViewController(std::move(screen));
        EXPECT_EQ(mainTitle(), QStringLiteral("Салаты"));
        EXPECT_EQ(mainScreen()->showsMenuIcon(), size == phone);
        Shell::current()->openCalendar();
        EXPECT_EQ(mainTitle(), QStringLiteral("Календарь диеты"));
        EXPECT_EQ(selectedRows(), size == phone ? QString() : QStringLiteral("6"));
        quit();
        EXPECT_EQ(Shell::current(), nullptr);
    }
}

} // namespace

} // namespace kesto::test
