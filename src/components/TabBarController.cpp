#include "components/TabBarController.h"

#include <utility>

namespace kesto
{

void TabBarController::setViewControllers(std::vector<std::unique_ptr<ViewController>> controllers)
{
    const QList<ViewController *> removed = std::exchange(tabs_, {});
    for (auto &controller : controllers)
        tabs_.append(adopt(std::move(controller)));
    selectedIndex_ = 0;
    Q_EMIT viewControllersChanged();
    Q_EMIT selectedIndexChanged();
    updateAppearance();
    for (ViewController *screen : removed)
        retire(screen);
}

void TabBarController::setSelectedIndex(int index)
{
    if (index < 0 || index >= tabs_.size() || index == selectedIndex_)
        return;
    selectedIndex_ = index;
    Q_EMIT selectedIndexChanged();
    updateAppearance();
}

QList<ViewController *> TabBarController::visibleChildren() const
{
    return tabs_.isEmpty() ? QList<ViewController *>() : QList<ViewController *>{tabs_.at(selectedIndex_)};
}

} // namespace kesto
