#pragma once

#include "components/TabBarController.h"
#include "journal/JornalHelper.h"

namespace kesto
{

class FoodBalanceRootViewController;
class JornalSheduleRootViewController;
class NavigationController;
class TimeRow;
class WaterBalanceRootViewController;

/// An open journal: schedule, water, protein and timer behind tabs, all but the timer on one day. On a tablet the
/// schedule is always in sight; beside it the other tab that was chosen last, or the editor of the row that was.
class JornalTabBarController : public TabBarController
{
    Q_OBJECT
    Q_PROPERTY(kesto::JornalHelper *helper READ helper CONSTANT)
    Q_PROPERTY(kesto::ViewController *shedule READ sheduleScreen CONSTANT)
    Q_PROPERTY(bool sideBySide READ isSideBySide NOTIFY arrangementChanged)
    Q_PROPERTY(int besideIndex READ besideIndex NOTIFY arrangementChanged)
    Q_PROPERTY(kesto::ViewController *editor READ editor NOTIFY arrangementChanged)
public:
    enum Tab { SheduleTab, WaterTab, ProteinTab, TimerTab };
    Q_ENUM(Tab)

    /// The day has a journal.
    explicit JornalTabBarController(DietDay &dietDay);
    ~JornalTabBarController() override;

    [[nodiscard]] JornalHelper *helper() { return &helper_; }
    [[nodiscard]] JornalSheduleRootViewController *shedule() const { return shedule_; }
    [[nodiscard]] ViewController *sheduleScreen() const;
    [[nodiscard]] WaterBalanceRootViewController *water() const { return water_; }
    [[nodiscard]] FoodBalanceRootViewController *protein() const { return protein_; }

    [[nodiscard]] bool isSideBySide() const { return sideBySide_; }
    /// The tab beside the schedule.
    [[nodiscard]] int besideIndex() const { return besideIndex_; }
    /// What stands in the place of that tab, or null.
    [[nodiscard]] ViewController *editor() const;

    /// Brings a tab in sight, also from under the editor.
    Q_INVOKABLE void showTab(int index);
    /// Opens the editor of a row of the day.
    void openRow(TimeRow &row);

    /// Leaves the day, then the journal: back to the screen that opened it, or from the menu to the program's first.
    void close() override;

    [[nodiscard]] QList<BarButtonItem *> leftBarButtonItems() const override;
    [[nodiscard]] QList<BarButtonItem *> rightBarButtonItems() const override;

Q_SIGNALS:
    void arrangementChanged();

protected:
    void viewWillDisappear() override;
    [[nodiscard]] QList<ViewController *> visibleChildren() const override;
    bool goBack() override;

private:
    void makeTabs(DietDay &dietDay);
    void makeTitle();
    void arrange();
    [[nodiscard]] bool isLeft() const;
    void closeEditor();

    JornalHelper helper_;
    JornalSheduleRootViewController *shedule_ = nullptr;
    WaterBalanceRootViewController *water_ = nullptr;
    FoodBalanceRootViewController *protein_ = nullptr;
    bool sideBySide_ = false;
    int besideIndex_ = WaterTab;
    NavigationController *editor_ = nullptr; // owned
};

} // namespace kesto
