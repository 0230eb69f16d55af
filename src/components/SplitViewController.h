#pragma once

#include "components/ViewController.h"

namespace kesto
{

class SplitViewController;

/// Hears that the master leaves its place at the left, or comes back to it.
class SplitViewControllerDelegate
{
public:
    virtual ~SplitViewControllerDelegate() = default;
    /// The button opens the master from now on; the delegate titles and places it.
    virtual void splitViewControllerWillHideMaster(SplitViewController &splitViewController, BarButtonItem &button) = 0;
    /// The button is of no use from now on.
    virtual void splitViewControllerWillShowMaster(SplitViewController &splitViewController, BarButtonItem &button) = 0;
};

/// A tablet's arrangement: a master beside a detail. In portrait the master hides and comes over the detail by a
/// button. Hidden or not, the master counts as visible: it lies ready beside the window.
class SplitViewController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(kesto::ViewController *master READ master CONSTANT)
    Q_PROPERTY(kesto::ViewController *detail READ detail NOTIFY detailChanged)
    Q_PROPERTY(bool masterHidden READ isMasterHidden NOTIFY masterHiddenChanged)
    Q_PROPERTY(bool menuPopoverOpen READ isMenuPopoverOpen WRITE setMenuPopoverOpen NOTIFY menuPopoverOpenChanged)
public:
    SplitViewController(std::unique_ptr<ViewController> master, std::unique_ptr<ViewController> detail);

    /// The delegate, which outlives this or is taken back by a null one, hears at once of a hidden master.
    void setDelegate(SplitViewControllerDelegate *delegate);

    [[nodiscard]] ViewController *master() const { return master_; }
    [[nodiscard]] ViewController *detail() const { return detail_; }
    /// Takes the place of the detail. The menu popover stays; the button's new place is the caller's affair.
    void setDetail(std::unique_ptr<ViewController> controller);

    /// The button that opens the master while it is hidden.
    [[nodiscard]] BarButtonItem *displayModeButtonItem() { return &displayModeButtonItem_; }
    /// In portrait; follows the window.
    [[nodiscard]] bool isMasterHidden() const { return masterHidden_; }
    /// The hidden master over the detail.
    [[nodiscard]] bool isMenuPopoverOpen() const { return menuPopoverOpen_; }
    void setMenuPopoverOpen(bool open);
    /// One step back on the master's side alone. False when there was nothing to leave.
    Q_INVOKABLE bool goBackInMaster() { return goBackIn(master_); }

Q_SIGNALS:
    void detailChanged();
    void masterHiddenChanged();
    void menuPopoverOpenChanged();

protected:
    [[nodiscard]] QList<ViewController *> visibleChildren() const override;
    bool goBack() override;

private:
    void followWindow();

    BarButtonItem displayModeButtonItem_;
    ViewController *master_ = nullptr; // owned
    ViewController *detail_ = nullptr; // owned
    SplitViewControllerDelegate *delegate_ = nullptr;
    bool masterHidden_ = false;
    bool menuPopoverOpen_ = false;
};

} // namespace kesto
