#include "components/TabBarController.h"

#include <utility>

namespace kesto
{

void TabBarController::setViewControllers(std::vector<std::unique_ptr<ViewController>> controllers)
{
    const QList<ViewController *> removed = std::exchange(tabs_, {});
    for (auto &controller : controllers) {
        tabs_.append(adopt(std::move(controller)));
        connect(tabs_.last(), &ViewController::barButtonItemsChanged, this, &ViewController::barButtonItemsChanged);
    }
    selectedIndex_ = 0;
    Q_EMIT viewControllersChanged();
    Q_EMIT selectedIndexChanged();
    Q_EMIT barButtonItemsChanged();
    updateAppearance();
    for (ViewController *screen : removed) {
        disconnect(screen, nullptr, this, nullptr);
        retire(screen);
    }
}

void TabBarController::setSelectedIndex(int index)
{
    if (index < 0 || index >= tabs_.size() || index == selectedIndex_)
        return;
    selectedIndex_ = index;
    Q_EMIT selectedIndexChanged();
    Q_EMIT barButtonItemsChanged();
    updateAppearance();
}

QList<BarButtonItem *> TabBarController::leftBarButtonItems() const
{
    const ViewController *selected = selectedViewController();
    return ViewController::leftBarButtonItems() +
           (selected != nullptr ? selected->leftBarButtonItems() : QList<BarButtonItem *>());
}

QList<BarButtonItem *> TabBarController::rightBarButtonItems() const
{
    const ViewController *selected = selectedViewController();
    return ViewController::rightBarButtonItems() +
           (selected != nullptr ? selected->rightBarButtonItems() : QList<BarButtonItem *>());
}

QList<ViewController *> TabBarController::visibleChildren() const
{
    return tabs_.isEmpty() ? QList<ViewController *>() : QList<ViewController *>{tabs_.at(selectedIndex_)};
}

} // namespace kesto
