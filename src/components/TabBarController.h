#pragma once

#include "components/ViewController.h"

#include <vector>

namespace kesto
{

/// Screens side by side behind tabs, named by their tabBarTitle and tabBarImage; the selected one is shown, and its bar
/// buttons follow the container's own.
class TabBarController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QList<kesto::ViewController *> viewControllers READ viewControllers NOTIFY viewControllersChanged)
    Q_PROPERTY(int selectedIndex READ selectedIndex WRITE setSelectedIndex NOTIFY selectedIndexChanged)
    Q_PROPERTY(kesto::ViewController *selectedViewController READ selectedViewController NOTIFY selectedIndexChanged)
public:
    using ViewController::ViewController;

    [[nodiscard]] QList<ViewController *> viewControllers() const { return tabs_; }
    /// In place of all tabs; the first is selected.
    void setViewControllers(std::vector<std::unique_ptr<ViewController>> controllers);

    [[nodiscard]] int selectedIndex() const { return selectedIndex_; }
    /// An index without a tab changes nothing.
    void setSelectedIndex(int index);
    [[nodiscard]] ViewController *selectedViewController() const { return tabs_.value(selectedIndex_); }

    [[nodiscard]] QList<BarButtonItem *> leftBarButtonItems() const override;
    [[nodiscard]] QList<BarButtonItem *> rightBarButtonItems() const override;

Q_SIGNALS:
    void viewControllersChanged();
    void selectedIndexChanged();

protected:
    [[nodiscard]] QList<ViewController *> visibleChildren() const override;

private:
    QList<ViewController *> tabs_; // owned
    int selectedIndex_ = 0;
};

} // namespace kesto
