#include "components/SideMenuContainer.h"

#include <utility>

namespace kesto
{

SideMenuContainer::SideMenuContainer(std::unique_ptr<ViewController> center, std::unique_ptr<ViewController> leftMenu)
    : center_(adopt(std::move(center)))
    , leftMenu_(adopt(std::move(leftMenu)))
{
}

void SideMenuContainer::setCenterViewController(std::unique_ptr<ViewController> controller)
{
    ViewController *removed = std::exchange(center_, adopt(std::move(controller)));
    const bool closes = std::exchange(menuOpen_, false);
    Q_EMIT centerViewControllerChanged();
    if (closes)
        Q_EMIT menuOpenChanged();
    updateAppearance();
    retire(removed);
}

void SideMenuContainer::setMenuOpen(bool open)
{
    if (menuOpen_ == open)
        return;
    menuOpen_ = open;
    Q_EMIT menuOpenChanged();
    updateAppearance();
}

QList<ViewController *> SideMenuContainer::visibleChildren() const
{
    return menuOpen_ ? QList<ViewController *>{center_, leftMenu_} : QList<ViewController *>{center_};
}

bool SideMenuContainer::goBack()
{
    if (!menuOpen_)
        return ViewController::goBack();
    if (!goBackIn(leftMenu_))
        setMenuOpen(false);
    return true;
}

} // namespace kesto
