#include "components/NavigationController.h"

#include "platform/StringTables.h"

#include <utility>

namespace kesto
{

NavigationController::NavigationController(QObject *parent)
    : ViewController(parent)
{
}

NavigationController::NavigationController(std::unique_ptr<ViewController> root)
    : ViewController(nullptr)
{
    append(std::move(root));
}

QString NavigationController::backButtonTitle() const
{
    if (!canGoBack())
        return {};
    const QString title = stack_.at(stack_.size() - 2)->title();
    return title.isEmpty() ? localized(QStringLiteral("Back")) : title;
}

void NavigationController::append(std::unique_ptr<ViewController> controller)
{
    ViewController *screen = adopt(std::move(controller));
    stack_.append(screen);
    connect(screen, &ViewController::titleChanged, this, &NavigationController::backButtonTitleChanged);
}

void NavigationController::changed(const QList<ViewController *> &removed)
{
    Q_EMIT viewControllersChanged();
    Q_EMIT backButtonTitleChanged();
    updateAppearance();
    for (ViewController *screen : removed) {
        disconnect(screen, nullptr, this, nullptr);
        retire(screen);
    }
}

void NavigationController::pushViewController(std::unique_ptr<ViewController> controller, bool animated)
{
    setTransitionAnimated(animated);
    append(std::move(controller));
    changed({});
}

void NavigationController::popViewController(bool animated)
{
    if (canGoBack())
        popToViewController(stack_.at(stack_.size() - 2), animated);
}

void NavigationController::popToRootViewController(bool animated)
{
    if (canGoBack())
        popToViewController(stack_.first(), animated);
}

void NavigationController::popToViewController(ViewController *controller, bool animated)
{
    const auto kept = stack_.indexOf(controller) + 1;
    if (kept == 0 || kept == stack_.size())
        return;
    const QList<ViewController *> removed = stack_.mid(kept);
    stack_.resize(kept);
    setTransitionAnimated(animated);
    changed(removed);
}

void NavigationController::setViewControllers(std::vector<std::unique_ptr<ViewController>> controllers, bool animated)
{
    const QList<ViewController *> removed = std::exchange(stack_, {});
    for (auto &controller : controllers)
        append(std::move(controller));
    setTransitionAnimated(animated);
    changed(removed);
}

QList<ViewController *> NavigationController::visibleChildren() const
{
    return stack_.isEmpty() ? QList<ViewController *>() : QList<ViewController *>{stack_.last()};
}

bool NavigationController::goBack()
{
    if (ViewController::goBack())
        return true;
    if (!canGoBack())
        return false;
    stack_.last()->close();
    return true;
}

} // namespace kesto
