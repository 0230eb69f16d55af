#pragma once

#include "components/TabBarController.h"
#include "journal/JornalHelper.h"

namespace kesto
{

class FoodBalanceRootViewController;
class JornalSheduleRootViewController;
class WaterBalanceRootViewController;

/// An open journal: schedule, water, protein and timer behind tabs, all but the timer on one day.
class JornalTabBarController : public TabBarController
{
    Q_OBJECT
    Q_PROPERTY(kesto::JornalHelper *helper READ helper CONSTANT)
public:
    enum Tab { SheduleTab, WaterTab, ProteinTab, TimerTab };
    Q_ENUM(Tab)

    /// The day has a journal.
    explicit JornalTabBarController(DietDay &dietDay);

    [[nodiscard]] JornalHelper *helper() { return &helper_; }
    [[nodiscard]] JornalSheduleRootViewController *shedule() const { return shedule_; }
    [[nodiscard]] WaterBalanceRootViewController *water() const { return water_; }
    [[nodiscard]] FoodBalanceRootViewController *protein() const { return protein_; }

    /// Leaves the day, then the journal: back to the screen that opened it, or from the menu to the program's first.
    void close() override;

private:
    JornalHelper helper_;
    JornalSheduleRootViewController *shedule_ = nullptr;
    WaterBalanceRootViewController *water_ = nullptr;
    FoodBalanceRootViewController *protein_ = nullptr;
};

} // namespace kesto
