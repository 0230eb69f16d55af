#pragma once

#include "components/ViewController.h"

namespace kesto
{

/// A phone's arrangement: one screen in the centre and a menu that comes in from the left over it.
class SideMenuContainer : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(kesto::ViewController *centerViewController READ centerViewController NOTIFY centerViewControllerChanged)
    Q_PROPERTY(kesto::ViewController *leftMenuViewController READ leftMenuViewController CONSTANT)
    Q_PROPERTY(bool menuOpen READ isMenuOpen WRITE setMenuOpen NOTIFY menuOpenChanged)
public:
    SideMenuContainer(std::unique_ptr<ViewController> center, std::unique_ptr<ViewController> leftMenu);

    [[nodiscard]] ViewController *centerViewController() const { return center_; }
    /// Takes the place of the screen in the centre and closes the menu.
    void setCenterViewController(std::unique_ptr<ViewController> controller);
    [[nodiscard]] ViewController *leftMenuViewController() const { return leftMenu_; }
    [[nodiscard]] bool isMenuOpen() const { return menuOpen_; }
    void setMenuOpen(bool open);

Q_SIGNALS:
    void centerViewControllerChanged();
    void menuOpenChanged();

protected:
    [[nodiscard]] QList<ViewController *> visibleChildren() const override;
    bool goBack() override;

private:
    ViewController *center_ = nullptr;   // owned
    ViewController *leftMenu_ = nullptr; // owned
    bool menuOpen_ = false;
};

} // namespace kesto
