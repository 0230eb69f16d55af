#include "journal/JornalTabBarController.h"

#include "components/NavigationController.h"
#include "components/Shell.h"
#include "components/SideMenuContainer.h"
#include "components/SplitViewController.h"
#include "components/TitleStepper.h"
#include "components/Window.h"
#include "journal/FoodBalanceRootViewController.h"
#include "journal/JornalSheduleRootViewController.h"
#include "journal/TimeRowDetailViewController.h"
#include "journal/TimerViewController.h"
#include "journal/WaterBalanceRootViewController.h"
#include "model/DietDay.h"
#include "model/TimeRow.h"
#include "platform/StringTables.h"

#include <utility>

namespace kesto
{

JornalTabBarController::JornalTabBarController(DietDay &dietDay)
    : helper_(dietDay)
    , sideBySide_(Window::sharedWindow().isTablet())
{
    setTitle(localized(QStringLiteral("Дневник Диеты")));
    makeTabs(dietDay);
    makeTitle();
    connect(&helper_, &JornalHelper::dateChanged, this, &JornalTabBarController::closeEditor);
    connect(&Window::sharedWindow(), &Window::isTabletChanged, this, &JornalTabBarController::arrange);
    connect(this, &TabBarController::selectedIndexChanged, this, [this] {
        if (selectedIndex() != SheduleTab)
            besideIndex_ = selectedIndex();
        Q_EMIT arrangementChanged();
    });
}

JornalTabBarController::~JornalTabBarController() = default;

void JornalTabBarController::makeTabs(DietDay &dietDay)
{
    std::vector<std::unique_ptr<ViewController>> tabs;
    const auto add = [&tabs](auto screen, const QString &title, const QString &image) {
        auto *made = screen.get();
        made->setTitle(localized(title));
        made->setTabBarItem(localized(title), image);
        tabs.push_back(std::move(screen));
        return made;
    };
    shedule_ = add(std::make_unique<JornalSheduleRootViewController>(dietDay), QStringLiteral("Расписание дня"),
                   QStringLiteral("button_schedule"));
    water_ = add(std::make_unique<WaterBalanceRootViewController>(dietDay), QStringLiteral("Контроль за водой"),
                 QStringLiteral("button_water"));
    protein_ = add(std::make_unique<FoodBalanceRootViewController>(dietDay), QStringLiteral("Белок"),
                   QStringLiteral("button_protein"));
    TimerViewController *timer =
        add(std::make_unique<TimerViewController>(), QStringLiteral("Таймер"), QStringLiteral("button_timer"));
    timer->setHelper(&helper_);
    helper_.setScreens({shedule_, water_, protein_});
    for (JornalTableViewController *screen : helper_.screens())
        screen->setHelper(&helper_);
    shedule_->setBalances(water_, protein_);
    setViewControllers(std::move(tabs));
}

void JornalTabBarController::makeTitle()
{
    auto stepper = std::make_unique<TitleStepper>(
        BarButtonItem::withImage(QStringLiteral("button_left"), [this] { helper_.goToPrevisiousDay(); }),
        BarButtonItem::withImage(QStringLiteral("button_right"), [this] { helper_.goToNextDay(); }));
    const auto showDate = [this, title = stepper.get()] { title->setText(helper_.dateText()); };
    showDate();
    connect(&helper_, &JornalHelper::dateChanged, stepper.get(), showDate);
    setTitleStepper(std::move(stepper));
}

// The screen that appears in its place, a calendar perhaps, shall find the day as it was left.
void JornalTabBarController::viewWillDisappear()
{
    if (isLeft())
        helper_.deallocCurrentDay();
}

bool JornalTabBarController::isLeft() const
{
    NavigationController *stack = navigationController();
    if (stack == nullptr)
        return false; // the end of this tells
    if (!stack->viewControllers().contains(this))
        return true;
    if (const auto *menu = qobject_cast<SideMenuContainer *>(stack->parentViewController()))
        return menu->centerViewController() != stack;
    if (const auto *split = qobject_cast<SplitViewController *>(stack->parentViewController()))
        return split->detail() != stack;
    return false;
}

ViewController *JornalTabBarController::sheduleScreen() const { return shedule_; }

ViewController *JornalTabBarController::editor() const { return editor_; }

void JornalTabBarController::arrange()
{
    if (std::exchange(sideBySide_, Window::sharedWindow().isTablet()) == Window::sharedWindow().isTablet())
        return;
    Q_EMIT arrangementChanged();
    Q_EMIT barButtonItemsChanged();
    updateAppearance();
}

void JornalTabBarController::showTab(int index)
{
    closeEditor();
    setSelectedIndex(index);
}

void JornalTabBarController::openRow(TimeRow &row)
{
    auto editor = std::make_unique<TimeRowDetailViewController>(row);
    editor->setDietDay(helper_.dietDay());
    editor->setJornalDay(row.joranlDay());
    connect(editor.get(), &TimeRowDetailViewController::rowChanged, shedule_,
            &JornalSheduleRootViewController::rowChangedInEditor);
    if (!sideBySide_) {
        if (NavigationController *stack = navigationController())
            stack->pushViewController(std::move(editor), true);
        return;
    }
    TimeRowDetailViewController &opened = *editor;
    auto closing = BarButtonItem::withImage(QStringLiteral("Plus.png"), [this] { closeEditor(); });
    closing->setAccessibleName(closing->accessibleName() + u' ' + opened.title()); // the journal has one as well
    editor->setLeftBarButtonItem(std::move(closing));
    NavigationController *before = std::exchange(
        editor_, static_cast<NavigationController *>(adopt(std::make_unique<NavigationController>(std::move(editor)))));
    shedule_->setEditedRow(&row);
    connect(shedule_, &JornalSheduleRootViewController::rowsChanged, &opened, [this, &opened] {
        if (opened.timeRow() == nullptr)
            closeEditor();
    });
    Q_EMIT arrangementChanged();
    updateAppearance();
    retire(before);
}

void JornalTabBarController::closeEditor()
{
    NavigationController *before = std::exchange(editor_, nullptr);
    if (before == nullptr)
        return;
    shedule_->setEditedRow(nullptr);
    Q_EMIT arrangementChanged();
    updateAppearance();
    retire(before);
}

void JornalTabBarController::close()
{
    helper_.deallocCurrentDay();
    const NavigationController *stack = navigationController();
    const bool first = stack != nullptr && stack->rootViewController() == this &&
                       stack->presentingViewController() == nullptr && stack->popoverOwner() == nullptr;
    if (Shell *shell = Shell::current(); first && shell != nullptr)
        shell->openHome();
    else
        TabBarController::close();
}

QList<BarButtonItem *> JornalTabBarController::leftBarButtonItems() const
{
    return sideBySide_ ? ViewController::leftBarButtonItems() + shedule_->leftBarButtonItems()
                       : TabBarController::leftBarButtonItems();
}

QList<BarButtonItem *> JornalTabBarController::rightBarButtonItems() const
{
    return sideBySide_ ? ViewController::rightBarButtonItems() + shedule_->rightBarButtonItems()
                       : TabBarController::rightBarButtonItems();
}

QList<ViewController *> JornalTabBarController::visibleChildren() const
{
    if (sideBySide_)
        return {shedule_, editor_ != nullptr ? editor_ : viewControllers().value(besideIndex_)};
    return editor_ != nullptr ? QList<ViewController *>{editor_} : TabBarController::visibleChildren();
}

bool JornalTabBarController::goBack()
{
    if (editor_ == nullptr)
        return TabBarController::goBack();
    if (!goBackIn(editor_))
        closeEditor();
    return true;
}

} // namespace kesto
