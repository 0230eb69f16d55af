#pragma once

#include "components/ViewController.h"

#include <vector>

namespace kesto
{

/// A stack of screens, of which the top one is shown under a bar with its title and its buttons.
class NavigationController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QList<kesto::ViewController *> viewControllers READ viewControllers NOTIFY viewControllersChanged)
    Q_PROPERTY(kesto::ViewController *topViewController READ topViewController NOTIFY viewControllersChanged)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY viewControllersChanged)
    Q_PROPERTY(QString backButtonTitle READ backButtonTitle NOTIFY backButtonTitleChanged)
public:
    explicit NavigationController(QObject *parent = nullptr);
    explicit NavigationController(std::unique_ptr<ViewController> root);

    [[nodiscard]] QList<ViewController *> viewControllers() const { return stack_; }
    [[nodiscard]] ViewController *rootViewController() const { return stack_.isEmpty() ? nullptr : stack_.first(); }
    [[nodiscard]] ViewController *topViewController() const { return stack_.isEmpty() ? nullptr : stack_.last(); }
    [[nodiscard]] bool canGoBack() const { return stack_.size() > 1; }
    /// The title of the screen below the top, the localised "Back" when it has none; null at the bottom.
    [[nodiscard]] QString backButtonTitle() const;

    void pushViewController(std::unique_ptr<ViewController> controller, bool animated);
    /// Nothing happens at the bottom.
    Q_INVOKABLE void popViewController(bool animated);
    Q_INVOKABLE void popToRootViewController(bool animated);
    /// Takes away what is above a screen of this stack; nothing happens for others.
    void popToViewController(ViewController *controller, bool animated);
    /// In place of all.
    void setViewControllers(std::vector<std::unique_ptr<ViewController>> controllers, bool animated);

Q_SIGNALS:
    void viewControllersChanged();
    void backButtonTitleChanged();

protected:
    [[nodiscard]] QList<ViewController *> visibleChildren() const override;
    bool goBack() override;

private:
    void append(std::unique_ptr<ViewController> controller);
    void changed(const QList<ViewController *> &removed);

    QList<ViewController *> stack_; // owned
};

} // namespace kesto
