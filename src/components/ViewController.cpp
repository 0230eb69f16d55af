#include "components/ViewController.h"

#include "components/NavigationController.h"
#include "components/PopoverController.h"
#include "components/SideMenuContainer.h"
#include "components/TitleStepper.h"
#include "components/Window.h"
#include "platform/StringTables.h"

#include <algorithm>
#include <utility>

namespace kesto
{

ViewController::ViewController(QObject *parent)
    : QObject(parent)
{
}

ViewController::~ViewController() = default;

void ViewController::setTitle(const QString &title)
{
    if (title_ == title && title_.isNull() == title.isNull())
        return;
    title_ = title;
    Q_EMIT titleChanged();
    if (tabBarTitle_.isNull())
        Q_EMIT tabBarItemChanged();
}

void ViewController::setTitleStepper(std::unique_ptr<TitleStepper> stepper)
{
    titleStepper_ = std::move(stepper);
    Q_EMIT titleChanged();
}

QString ViewController::viewName() const
{
    QString name = QString::fromLatin1(metaObject()->className()).section(QStringLiteral("::"), -1);
    for (const QString &ending :
         {QStringLiteral("ViewController"), QStringLiteral("Controller"), QStringLiteral("Container")}) {
        if (name.endsWith(ending)) {
            name.chop(ending.size());
            break;
        }
    }
    return name + QStringLiteral("View");
}

void ViewController::setTabBarItem(const QString &title, const QString &image)
{
    tabBarTitle_ = title;
    tabBarImage_ = image;
    Q_EMIT tabBarItemChanged();
}

QList<BarButtonItem *> ViewController::pointers(const BarButtonItems &items)
{
    QList<BarButtonItem *> result;
    for (const auto &item : items)
        result.append(item.get());
    return result;
}

QList<BarButtonItem *> ViewController::leftBarButtonItems() const
{
    QList<BarButtonItem *> result;
    if (menuIcon_)
        result.append(menuIcon_.get());
    if (menuItem_)
        result.append(menuItem_);
    return result + pointers(leftItems_);
}

void ViewController::replaceItems(BarButtonItems &items, BarButtonItems by)
{
    std::erase(by, nullptr);
    std::swap(items, by);
    Q_EMIT barButtonItemsChanged();
    for (auto &gone : by)
        gone.release()->deleteLater(); // one of them may be at work
}

namespace
{
BarButtonItems listOf(std::unique_ptr<BarButtonItem> item)
{
    BarButtonItems items;
    items.push_back(std::move(item));
    return items;
}
} // namespace

void ViewController::setLeftBarButtonItems(BarButtonItems items) { replaceItems(leftItems_, std::move(items)); }
void ViewController::setLeftBarButtonItem(std::unique_ptr<BarButtonItem> item)
{
    replaceItems(leftItems_, listOf(std::move(item)));
}
void ViewController::setRightBarButtonItems(BarButtonItems items) { replaceItems(rightItems_, std::move(items)); }
void ViewController::setRightBarButtonItem(std::unique_ptr<BarButtonItem> item)
{
    replaceItems(rightItems_, listOf(std::move(item)));
}
void ViewController::setToolbarItems(BarButtonItems items) { replaceItems(toolbarItems_, std::move(items)); }

void ViewController::setShowsMenuIcon(bool shows)
{
    if (shows == showsMenuIcon())
        return;
    std::unique_ptr<BarButtonItem> item;
    if (shows) {
        item = BarButtonItem::withImage(QStringLiteral("menu"), [this] {
            if (auto *menu = enclosing<SideMenuContainer>())
                menu->setMenuOpen(!menu->isMenuOpen());
        });
        item->setAccessibleName(localized(QStringLiteral("Menu")));
    }
    std::swap(menuIcon_, item);
    Q_EMIT barButtonItemsChanged();
    if (item)
        item.release()->deleteLater();
}

void ViewController::setMenuBarButtonItem(BarButtonItem *item)
{
    if (menuItem_ == item)
        return;
    if (menuItem_)
        disconnect(menuItem_, nullptr, this, nullptr);
    menuItem_ = item;
    if (item)
        connect(item, &QObject::destroyed, this, &ViewController::barButtonItemsChanged);
    Q_EMIT barButtonItemsChanged();
}

void ViewController::loadViewIfNeeded()
{
    if (loaded_)
        return;
    loaded_ = true;
    viewDidLoad();
    contentDidLoad();
}

NavigationController *ViewController::navigationController() const { return enclosing<NavigationController>(); }

ViewController *ViewController::outermost() const
{
    const ViewController *each = this;
    for (;;) {
        const ViewController *outer = each->container_;
        if (!outer && each->inPopover_)
            outer = each->inPopover_->owner();
        if (!outer)
            return const_cast<ViewController *>(each); // the caller has a non-const way to it: it is in its tree
        each = outer;
    }
}

void ViewController::presentViewController(std::unique_ptr<ViewController> controller, bool animated)
{
    ViewController *base = outermost();
    while (base->presented_)
        base = base->presented_;
    ViewController *presented = controller.release();
    presented->setParent(base);
    presented->presenting_ = base;
    presented->animated_ = animated;
    base->presented_ = presented;
    updateAppearance();
}

ViewController *ViewController::presentedViewController() const { return outermost()->presented_; }
ViewController *ViewController::presentingViewController() const { return outermost()->presenting_; }

void ViewController::dismissViewController(bool animated)
{
    ViewController *base = outermost();
    if (base->presented_)
        base->dismissPresented(animated);
    else if (base->presenting_)
        base->presenting_->dismissPresented(animated);
    else if (Window::sharedWindow().lockScreen() == base)
        Window::sharedWindow().setLockScreen(nullptr, animated);
}

void ViewController::dismissPresented(bool animated)
{
    QList<ViewController *> gone;
    for (ViewController *each = this; each->presented_;) {
        ViewController *above = each->presented_;
        each->presented_ = nullptr;
        above->setParent(this); // each goes at its own time
        above->animated_ = animated;
        gone.append(above);
        each = above;
    }
    updateAppearance();
    for (ViewController *each : std::as_const(gone))
        retire(each);
}

PopoverController *ViewController::presentPopover(std::unique_ptr<ViewController> content, const QString &anchor)
{
    dismissPopover();
    auto *popover = new PopoverController(content.release(), this, anchor);
    popover->content()->setParent(popover);
    popover->content()->inPopover_ = popover;
    popover_ = popover;
    Q_EMIT popoverChanged();
    updateAppearance();
    return popover;
}

PopoverController *ViewController::popover() const { return popover_; }

void ViewController::dismissPopover()
{
    PopoverController *gone = popover_;
    if (!gone)
        return;
    popover_ = nullptr;
    // The screen may stay while a view lets it go, and the bubble with it.
    ViewController *content = gone->content();
    content->setParent(this);
    gone->setParent(content);
    Q_EMIT popoverChanged();
    updateAppearance();
    retire(content);
}

ViewController *ViewController::popoverOwner() const
{
    for (const ViewController *each = this; each; each = each->container_) {
        if (each->inPopover_)
            return each->inPopover_->owner();
    }
    return nullptr;
}

void ViewController::close()
{
    if (container_) {
        auto *navigation = qobject_cast<NavigationController *>(container_);
        const auto index = navigation ? navigation->viewControllers().indexOf(this) : 0;
        if (index > 0)
            navigation->popToViewController(navigation->viewControllers().at(index - 1), true);
        else
            container_->close();
    } else if (inPopover_) {
        inPopover_->dismiss();
    } else if (presenting_) {
        presenting_->dismissPresented(true);
    } else if (Window::sharedWindow().lockScreen() == this) {
        Window::sharedWindow().setLockScreen(nullptr, true);
    }
}

bool ViewController::goBack()
{
    const QList<ViewController *> children = visibleChildren();
    return std::any_of(children.rbegin(), children.rend(), [](ViewController *child) { return child->goBack(); });
}

void ViewController::detachView()
{
    Q_ASSERT(views_ > 0);
    if (--views_ == 0 && retired_)
        deleteLater();
}

ViewController *ViewController::adopt(std::unique_ptr<ViewController> controller)
{
    ViewController *taken = controller.release();
    Q_ASSERT(taken);
    taken->setParent(this);
    taken->container_ = this;
    return taken;
}

void ViewController::retire(ViewController *controller)
{
    if (!controller || controller->retired_)
        return;
    controller->container_ = nullptr;
    controller->presenting_ = nullptr;
    controller->inPopover_ = nullptr;
    controller->retired_ = true;
    Q_EMIT controller->wasRemoved();
    if (controller->views_ == 0)
        controller->deleteLater();
}

void ViewController::updateAppearance() { Window::sharedWindow().updateAppearance(); }

} // namespace kesto
