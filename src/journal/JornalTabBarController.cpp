#include "journal/JornalTabBarController.h"

#include "components/NavigationController.h"
#include "components/Shell.h"
#include "journal/FoodBalanceRootViewController.h"
#include "journal/JornalSheduleRootViewController.h"
#include "journal/TimerViewController.h"
#include "journal/WaterBalanceRootViewController.h"
#include "platform/StringTables.h"

#include <utility>

namespace kesto
{

JornalTabBarController::JornalTabBarController(DietDay &dietDay)
    : helper_(dietDay)
{
    setTitle(localized(QStringLiteral("Дневник Диеты")));
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
    setViewControllers(std::move(tabs));
    // A container that is replaced is told by nobody else; its end may be a transition away.
    connect(this, &ViewController::wasRemoved, &helper_, &JornalHelper::deallocCurrentDay);
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

} // namespace kesto
