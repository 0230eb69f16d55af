import QtQuick
import Kesto

/*!
    Everything in the window, from the back to the front: the root screen, presented screens, popovers, the progress
    indicator, an alert, the lock. Whatever is in front takes the keys and the touches from what is behind.
    Escape goes back, Ctrl+M opens the menu, or leads to the one that is always there.
*/
FocusScope {
    id: shell

    required property AppWindow appWindow
    required property AlertCenter alertCenter
    required property ProgressIndicator progress
    readonly property bool locked: appWindow.lockScreen !== null
    readonly property bool asked: alertCenter.current !== null
    readonly property bool popped: appWindow.popovers.length > 0
    readonly property bool presenting: appWindow.presentedViewControllers.length > 0

    function toggleMenu(): void {
        const menu = appWindow.rootViewController as SideMenuContainer;
        const split = appWindow.rootViewController as SplitViewController;
        if (menu)
            menu.menuOpen = !menu.menuOpen;
        else if (split && split.masterHidden)
            split.menuPopoverOpen = !split.menuPopoverOpen;
        else if (split)
            (root.page.item as SplitView).swapKeys();
    }
    readonly property Item front: locked ? lock : asked ? alerts : popped ? popovers : presenting ? presented : root
    readonly property Item keysAt: Window.activeFocusItem

    /*! The keys go to what is in front; each part remembers which of its items had them. */
    function giveKeys(): void {
        front.forceActiveFocus(Qt.OtherFocusReason);
    }

    onWidthChanged: appWindow.size = Qt.size(width, height)
    onHeightChanged: appWindow.size = Qt.size(width, height)
    onFrontChanged: giveKeys()
    // What is behind may have taken them for itself: a menu that opens when a tablet is turned, a screen that is presented.
    onKeysAtChanged: taken.restart()
    Component.onCompleted: giveKeys()

    Keys.onEscapePressed: event => event.accepted = behind.enabled && appWindow.back()
    Keys.onBackPressed: event => event.accepted = behind.enabled && appWindow.back()

    // Not while they are being given.
    Timer {
        id: taken

        interval: 0
        onTriggered: {
            if (shell.activeFocus && !shell.front.activeFocus)
                shell.giveKeys();
        }
    }
    Background {
        anchors.fill: parent
        picture: shell.appWindow.backgroundImage.length > 0 ? shell.appWindow.backgroundImage : Styllesheet.backgroundImage
    }
    FocusScope {
        id: behind

        anchors.fill: parent
        focus: true
        enabled: !shell.locked && !shell.asked && !shell.progress.visible

        FocusScope {
            id: screens

            anchors.fill: parent
            focus: true
            enabled: !shell.popped

            Swap {
                id: root

                anchors.fill: parent
                focus: true
                enabled: !shell.presenting
                visible: !presented.covering
                controller: shell.appWindow.rootViewController
            }
            PresentedLayer {
                id: presented

                anchors.fill: parent
                appWindow: shell.appWindow
            }
        }
        Later {
            id: popovers

            anchors.fill: parent
            needed: shell.popped
            file: "PopoverLayer.qml"
            content: ({ appWindow: shell.appWindow, root: behind })
        }
    }
    Later {
        anchors.fill: parent
        needed: shell.progress.visible
        file: "../components/ProgressOverlay.qml"
        content: ({ progress: shell.progress })
    }
    Later {
        id: alerts

        anchors.fill: parent
        enabled: !shell.locked
        needed: shell.asked
        file: "AlertLayer.qml"
        content: ({ appWindow: shell.appWindow, alertCenter: shell.alertCenter, root: behind })
    }
    Swap {
        id: lock

        anchors.fill: parent
        fades: true
        controller: shell.appWindow.lockScreen

        MouseArea {
            anchors.fill: parent
            visible: shell.locked
            z: -1
            onWheel: {}
        }
    }
    Shortcut {
        sequence: "Ctrl+M"
        enabled: behind.enabled && !shell.presenting && !shell.popped
        onActivated: shell.toggleMenu()
    }
}
