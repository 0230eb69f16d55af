import QtQuick
import Kesto

/*! The tablet's arrangement: the menu beside a screen; in portrait it comes in over it. */
Drawer {
    id: view

    required property SplitViewController controller

    docked: !controller.masterHidden
    panelWidth: Math.min(Math.round(Tokens.masterWidth * Tokens.pictureScale), docked ? width / 2 : width - Tokens.barHeight)
    panelName: Texts.localized("Menu")
    open: controller.menuPopoverOpen
    mainController: controller.detail
    panelController: controller.master
    onOpenRequested: open => controller.menuPopoverOpen = open
    // Beside each other, the side that has the keys goes back first.
    Keys.onEscapePressed: event => event.accepted = docked && keysInPanel && controller.goBackInMaster()
    Keys.onBackPressed: event => event.accepted = docked && keysInPanel && controller.goBackInMaster()
}
