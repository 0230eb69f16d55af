#pragma once

#include "components/BarButtonItem.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

namespace kesto
{

class NavigationController;
class PopoverController;
class TitleStepper;

/// A screen: its title, its buttons, what it has open. Subclasses carry Q_OBJECT: the class's name finds the view that
/// draws it.
///
/// A container, or the screen that presents, owns its screens. One that is taken away is destroyed when the event loop
/// turns, or as soon as the last view that draws it lets go of it (attachView, detachView), so that a view may animate
/// its leaving.
///
/// Lifecycle: viewDidLoad once; then, each time the screen becomes visible in the window, viewWillAppear and
/// viewDidAppear, and viewWillDisappear when it no longer is: left, covered by a pushed or a presented screen, or in a
/// container that is. A popover, an alert, an open side menu and the lock screen cover nothing. A change made inside
/// one of these hooks takes effect on the lists at once and on the lifecycle when the running change is done.
class ViewController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString viewName READ viewName CONSTANT)
    Q_PROPERTY(QString tabBarTitle READ tabBarTitle NOTIFY tabBarItemChanged)
    Q_PROPERTY(QString tabBarImage READ tabBarImage NOTIFY tabBarItemChanged)
    Q_PROPERTY(QList<kesto::BarButtonItem *> leftBarButtonItems READ leftBarButtonItems NOTIFY barButtonItemsChanged)
    Q_PROPERTY(QList<kesto::BarButtonItem *> rightBarButtonItems READ rightBarButtonItems NOTIFY barButtonItemsChanged)
    Q_PROPERTY(QList<kesto::BarButtonItem *> toolbarItems READ toolbarItems NOTIFY barButtonItemsChanged)
    Q_PROPERTY(kesto::TitleStepper *titleStepper READ titleStepper NOTIFY titleChanged)
    Q_PROPERTY(bool isVisible READ isVisible NOTIFY isVisibleChanged)
    Q_PROPERTY(kesto::PopoverController *popover READ popover NOTIFY popoverChanged)
    Q_MOC_INCLUDE("components/PopoverController.h")
    Q_MOC_INCLUDE("components/TitleStepper.h")
public:
    explicit ViewController(QObject *parent = nullptr);
    ~ViewController() override;

    [[nodiscard]] QString title() const { return title_; }
    void setTitle(const QString &title);
    /// What a bar shows in place of the title; null for the title.
    [[nodiscard]] TitleStepper *titleStepper() const { return titleStepper_.get(); }
    void setTitleStepper(std::unique_ptr<TitleStepper> stepper);
    /// The view that draws this screen: the class's name with "View" for "ViewController".
    [[nodiscard]] virtual QString viewName() const;

    /// How a tab container names this screen; its title when none was set.
    [[nodiscard]] QString tabBarTitle() const { return tabBarTitle_.isNull() ? title_ : tabBarTitle_; }
    [[nodiscard]] QString tabBarImage() const { return tabBarImage_; }
    void setTabBarItem(const QString &title, const QString &image);

    /// The buttons at the left: the one that opens the menu, then this screen's own.
    [[nodiscard]] virtual QList<BarButtonItem *> leftBarButtonItems() const;
    [[nodiscard]] virtual QList<BarButtonItem *> rightBarButtonItems() const { return pointers(rightItems_); }
    [[nodiscard]] QList<BarButtonItem *> toolbarItems() const { return pointers(toolbarItems_); }
    /// The screen owns its buttons; those that are replaced are destroyed when the event loop turns. A null item
    /// clears.
    void setLeftBarButtonItems(BarButtonItems items);
    void setLeftBarButtonItem(std::unique_ptr<BarButtonItem> item);
    void setRightBarButtonItems(BarButtonItems items);
    void setRightBarButtonItem(std::unique_ptr<BarButtonItem> item);
    void setToolbarItems(BarButtonItems items);

    /// A button in front of the others at the left that opens the side menu this screen is in.
    [[nodiscard]] bool showsMenuIcon() const { return menuIcon_ != nullptr; }
    void setShowsMenuIcon(bool shows);
    /// The same place for a button of another's (the split view's); null takes it away. It goes when it is destroyed.
    void setMenuBarButtonItem(BarButtonItem *item);
    [[nodiscard]] BarButtonItem *menuBarButtonItem() const { return menuItem_; }

    void loadViewIfNeeded();
    [[nodiscard]] bool isViewLoaded() const { return loaded_; }
    [[nodiscard]] bool isVisible() const { return visible_; }

    /// The container that holds this screen, or null.
    [[nodiscard]] ViewController *parentViewController() const { return container_; }
    /// The nearest container of a kind that holds this screen, or null; a presented screen and a popover's content are
    /// in none of their presenter's.
    template <class Container>
    [[nodiscard]] Container *enclosing() const
    {
        for (ViewController *each = container_; each; each = each->container_) {
            if (auto *found = qobject_cast<Container *>(each))
                return found;
        }
        return nullptr;
    }
    [[nodiscard]] NavigationController *navigationController() const;

    /// Covers everything that is in the window with a screen. Over a presented one it comes on top.
    void presentViewController(std::unique_ptr<ViewController> controller, bool animated);
    /// What this screen, or the container it is in, has presented; what presented them.
    [[nodiscard]] ViewController *presentedViewController() const;
    [[nodiscard]] ViewController *presentingViewController() const;
    /// Takes away what this screen has presented and all above it; having none, this screen itself, if it is presented
    /// or the lock.
    Q_INVOKABLE void dismissViewController(bool animated);

    /// Shows a screen in a bubble beside the thing of the view that is named anchor. Another popover of this screen
    /// closes, and so does this one when the screen disappears.
    PopoverController *presentPopover(std::unique_ptr<ViewController> content, const QString &anchor);
    [[nodiscard]] PopoverController *popover() const;
    Q_INVOKABLE void dismissPopover();
    /// The screen whose popover shows this one or the container it is in, or null.
    [[nodiscard]] ViewController *popoverOwner() const;

    /// Leaves this screen: back to the one below on its stack, otherwise out of its popover, otherwise dismissed.
    Q_INVOKABLE virtual void close();
    /// Whether Escape may leave this screen when it is presented.
    [[nodiscard]] virtual bool canClose() const { return true; }

    /// Whether the last presentation or stack change asked to be animated; for views.
    [[nodiscard]] Q_INVOKABLE bool isTransitionAnimated() const { return animated_; }

    /// Makes the view shake its head.
    Q_INVOKABLE void shake() { Q_EMIT shaken(); }

    /// A view that draws this screen calls these when it is made and when it is gone.
    Q_INVOKABLE void attachView() { ++views_; }
    Q_INVOKABLE void detachView();

Q_SIGNALS:
    void titleChanged();
    void tabBarItemChanged();
    void barButtonItemsChanged();
    void isVisibleChanged();
    void popoverChanged();
    void shaken();
    /// It has left its container or presenter for good. The event loop turns between this and its end.
    void wasRemoved();

protected:
    virtual void viewDidLoad() {}
    virtual void viewWillAppear() {}
    virtual void viewDidAppear() {}
    virtual void viewWillDisappear() {}
    /// Follows viewDidLoad; for base classes that have something to do with what a subclass loaded.
    virtual void contentDidLoad() {}

    /// Those of a container's screens that can be seen when the container can.
    [[nodiscard]] virtual QList<ViewController *> visibleChildren() const { return {}; }

    /// One step back in what can be seen; false when there is none. Containers ask the topmost of theirs first.
    virtual bool goBack();
    static bool goBackIn(ViewController *controller) { return controller->goBack(); }

    /// For containers. Takes a screen in.
    ViewController *adopt(std::unique_ptr<ViewController> controller);
    /// Lets a screen go that is no longer in any list; null does nothing. updateAppearance() comes first.
    static void retire(ViewController *controller);
    /// Tells the window that who can be seen may have changed.
    static void updateAppearance();
    void setTransitionAnimated(bool animated) { animated_ = animated; }

private:
    friend class Window;
    [[nodiscard]] static QList<BarButtonItem *> pointers(const BarButtonItems &items);
    void replaceItems(BarButtonItems &items, BarButtonItems by);
    [[nodiscard]] ViewController *outermost() const;
    void dismissPresented(bool animated);

    QString title_;
    std::unique_ptr<TitleStepper> titleStepper_;
    QString tabBarTitle_;
    QString tabBarImage_;
    BarButtonItems leftItems_;
    BarButtonItems rightItems_;
    BarButtonItems toolbarItems_;
    std::unique_ptr<BarButtonItem> menuIcon_;
    QPointer<BarButtonItem> menuItem_;
    QPointer<ViewController> container_;
    QPointer<ViewController> presenting_;
    QPointer<ViewController> presented_; // owned
    QPointer<PopoverController> inPopover_;
    QPointer<PopoverController> popover_; // owned
    int views_ = 0;
    bool loaded_ = false;
    bool visible_ = false;
    bool animated_ = false;
    bool retired_ = false;
};

} // namespace kesto
