import QtQuick
import Kesto

/*! The phone's arrangement: a screen, and a menu that comes in over it. */
Drawer {
    id: view

    required property SideMenuContainer controller

    panelWidth: Math.min(Math.round(Tokens.menuWidth * Tokens.pictureScale), width - Tokens.barHeight)
    panelName: Texts.localized("Menu")
    open: controller.menuOpen
    mainController: controller.centerViewController
    panelController: controller.leftMenuViewController
    onOpenRequested: open => controller.menuOpen = open
}
