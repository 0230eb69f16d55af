#include "tour/TourStopsBalance.h"

#include "journal/FoodBalanceRootViewController.h"
#include "journal/JornalTabBarController.h"
#include "journal/TimerViewController.h"
#include "journal/WaterBalanceRootViewController.h"
#include "tour/TourGuide.h"

#include <chrono>

namespace kesto
{

namespace
{

constexpr int jornalRow = 7;

/// The screen of a tab of today's journal, in sight.
template <class Screen>
Screen *openTab(TourGuide &guide, int tab)
{
    guide.openRow(jornalRow);
    guide.settle();
    auto *jornal = guide.screenOf<JornalTabBarController>();
    if (jornal == nullptr)
        return nullptr;
    jornal->setSelectedIndex(tab);
    guide.settle();
    return guide.screenOf<Screen>();
}

template <class Act>
std::function<void(TourGuide &)> inWater(Act act)
{
    return [act](TourGuide &guide) {
        auto *screen = openTab<WaterBalanceRootViewController>(guide, JornalTabBarController::WaterTab);
        if (screen == nullptr)
            return;
        if (!screen->hasRows()) {
            for (const int portion : {4, 2, 3, 7})
                screen->picker()->touch(portion);
        }
        act(*screen);
    };
}

template <class Act>
std::function<void(TourGuide &)> inProtein(Act act)
{
    return [act](TourGuide &guide) {
        auto *screen = openTab<FoodBalanceRootViewController>(guide, JornalTabBarController::ProteinTab);
        if (screen == nullptr)
            return;
        if (!screen->hasRows()) {
            for (const int food : {4, 4, 7, 15, 9, 1})
                screen->meatButtonTouched(food);
            screen->actionButtonTouched(2);
        }
        act(*screen);
    };
}

/// In a state in which its buttons were touched; a countdown that an earlier stop left is cancelled before.
std::function<void(TourGuide &)> inTimer(const QList<int> &touched)
{
    return [touched](TourGuide &guide) {
        auto *screen = openTab<TimerViewController>(guide, JornalTabBarController::TimerTab);
        if (screen == nullptr)
            return;
        if (screen->isCounting())
            screen->buttonTouched(TimerViewController::StartButton);
        for (const int tag : touched)
            screen->buttonTouched(tag);
    };
}

/// Goes on where a countdown is as good as over.
void timerDone(TourGuide &guide)
{
    auto *screen = openTab<TimerViewController>(guide, JornalTabBarController::TimerTab);
    if (screen == nullptr)
        return;
    screen->cancel();
    screen->shedulTimerForTimeInterval(1);
    guide.settle(std::chrono::milliseconds(2500));
}

} // namespace

QList<TourStop> balanceTourStops()
{
    using Water = WaterBalanceRootViewController;
    using Protein = FoodBalanceRootViewController;
    constexpr int start = TimerViewController::StartButton;
    constexpr int pause = TimerViewController::PauseButton;
    return {
        {QStringLiteral("water-empty"),
         [](TourGuide &guide) { (void)openTab<Water>(guide, JornalTabBarController::WaterTab); }},
        {QStringLiteral("water"), inWater([](Water &) {})},
        {QStringLiteral("water-hot-day"),
         inWater([](Water &screen) { screen.actionButtonTouched(Water::HeatAction); })},
        {QStringLiteral("water-volumes"),
         inWater([](Water &screen) { screen.actionButtonTouched(Water::VolumeAction); })},
        {QStringLiteral("protein-empty"),
         [](TourGuide &guide) { (void)openTab<Protein>(guide, JornalTabBarController::ProteinTab); }},
        {QStringLiteral("protein"), inProtein([](Protein &) {})},
        {QStringLiteral("timer"), inTimer({})},
        {QStringLiteral("timer-running"), inTimer({start})},
        {QStringLiteral("timer-paused"), inTimer({start, pause})},
        {QStringLiteral("timer-done"), timerDone},
        {QStringLiteral("timer-after"), inTimer({})},
    };
}

} // namespace kesto
