#include "components/Window.h"

#include "components/PopoverController.h"
#include "platform/Platform.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kesto
{

namespace
{
constexpr qreal tabletSide = 600; // points
}

Window &Window::sharedWindow() { return Platform::current().shared<Window>(); }

Window::Window(Platform &) {}
Window::~Window() = default;

void Window::setRootViewController(std::unique_ptr<ViewController> controller)
{
    ViewController *removed = std::exchange(root_, controller.release());
    if (root_)
        root_->setParent(this);
    else
        setLockScreen(nullptr, false);
    Q_EMIT rootViewControllerChanged();
    updateAppearance();
    ViewController::retire(removed);
}

QList<ViewController *> Window::presentedViewControllers() const
{
    QList<ViewController *> chain;
    for (ViewController *each = root_; each && each->presented_; each = each->presented_)
        chain.append(each->presented_);
    return chain;
}

void Window::setLockScreen(std::unique_ptr<ViewController> controller, bool animated)
{
    if (!controller && !lockScreen_)
        return;
    ViewController *removed = std::exchange(lockScreen_, controller.release());
    if (lockScreen_)
        lockScreen_->setParent(this);
    for (ViewController *each : {lockScreen_, removed}) {
        if (each)
            each->animated_ = animated;
    }
    Q_EMIT lockScreenChanged();
    updateAppearance();
    ViewController::retire(removed);
}

void Window::setSize(const QSizeF &size)
{
    if (size_ == size)
        return;
    size_ = size;
    Q_EMIT sizeChanged();
    updateSizeClass();
}

void Window::setDevice(Device device)
{
    device_ = device;
    updateSizeClass();
}

void Window::updateSizeClass()
{
    const bool large = std::min(size_.width(), size_.height()) >= tabletSide;
    const bool tablet = device_ == Device::BySize ? large : device_ == Device::Tablet;
    if (std::exchange(tablet_, tablet) != tablet)
        Q_EMIT isTabletChanged();
    const bool portrait = size_.height() >= size_.width();
    if (std::exchange(portrait_, portrait) != portrait)
        Q_EMIT isPortraitChanged();
}

void Window::setTintColor(const QColor &color)
{
    tintColor_ = color;
    Q_EMIT lookChanged();
}

void Window::setBackgroundImage(const QString &image)
{
    backgroundImage_ = image;
    Q_EMIT lookChanged();
}

bool Window::back()
{
    if (lockScreen_)
        return false;
    if (!popovers_.isEmpty()) {
        if (!popovers_.last()->content()->goBack())
            popovers_.last()->dismiss();
        return true;
    }
    const QList<ViewController *> presented = presentedViewControllers();
    ViewController *top = presented.isEmpty() ? root_ : presented.last();
    if (!top || top->goBack())
        return top != nullptr;
    if (presented.isEmpty())
        return false;
    // The screen the user sees decides, and leaves in its own way.
    ViewController *seen = top;
    while (!seen->visibleChildren().isEmpty())
        seen = seen->visibleChildren().last();
    if (!seen->canClose() || !top->canClose())
        return false;
    seen->close();
    return true;
}

void Window::collect(ViewController *controller, QList<ViewController *> &into, QList<PopoverController *> &popovers)
{
    into.append(controller);
    const QList<ViewController *> children = controller->visibleChildren();
    for (ViewController *child : children)
        collect(child, into, popovers);
    if (controller->popover_) {
        popovers.append(controller->popover_);
        collect(controller->popover_->content(), into, popovers);
    }
}

void Window::updateAppearance()
{
    updateAgain_ = true;
    if (updating_)
        return;
    updating_ = true;
    while (std::exchange(updateAgain_, false)) {
        const QList<ViewController *> presented = presentedViewControllers();
        QList<ViewController *> wanted;
        QList<PopoverController *> popovers;
        if (ViewController *top = presented.isEmpty() ? root_ : presented.last())
            collect(top, wanted, popovers);
        if (lockScreen_)
            collect(lockScreen_, wanted, popovers);

        if (!std::equal(presented.begin(), presented.end(), presentedBefore_.begin(), presentedBefore_.end())) {
            presentedBefore_ = {presented.begin(), presented.end()};
            Q_EMIT presentedViewControllersChanged();
        }
        if (popovers_ != popovers) {
            popovers_ = popovers;
            Q_EMIT popoversChanged();
        }
        changeAppearance(wanted);
    }
    updating_ = false;
}

void Window::changeAppearance(const QList<ViewController *> &wanted)
{
    const QList<QPointer<ViewController>> before =
        std::exchange(visible_, QList<QPointer<ViewController>>(wanted.begin(), wanted.end()));
    QList<ViewController *> coming;
    std::copy_if(wanted.begin(), wanted.end(), std::back_inserter(coming),
                 [](const ViewController *each) { return !each->visible_; });

    // A screen ends at the earliest when the event loop turns, so nobody goes while this runs.
    for (ViewController *each : std::as_const(coming))
        each->loadViewIfNeeded();
    for (const QPointer<ViewController> &each : before) {
        if (!each || wanted.contains(each))
            continue;
        each->viewWillDisappear();
        each->visible_ = false;
        Q_EMIT each->isVisibleChanged();
        each->dismissPopover();
    }
    for (ViewController *each : std::as_const(coming)) {
        each->visible_ = true;
        each->viewWillAppear();
        Q_EMIT each->isVisibleChanged();
    }
    for (ViewController *each : std::as_const(coming))
        each->viewDidAppear();
}

} // namespace kesto
