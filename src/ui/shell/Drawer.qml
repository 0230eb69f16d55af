import QtQuick
import Kesto

/*!
    A side panel and the main content. Docked, both stand side by side; otherwise the panel comes in from the left over the
    content: by \a open, or a finger from the left edge; it goes by a touch beside it, or a finger to the left.

    At the start what is in front comes with the window's first frame, and what is behind it with the next.
*/
FocusScope {
    id: drawer

    property bool docked: false
    property bool open: false
    property real panelWidth: Tokens.menuWidth
    property ViewController panelController: null
    property ViewController mainController: null
    property string panelName
    readonly property real shownWidth: docked ? panelWidth : panelWidth + panel.x
    readonly property alias keysInPanel: panel.activeFocus

    signal openRequested(bool open)

    function settle(): void {
        panel.x = docked || open ? 0 : -panelWidth;
    }

    /*! Where they go within the drawer; whether the drawer has them at all is not its affair. */
    function giveKeys(): void {
        if (!docked)
            (open ? panel : main).focus = true;
    }
    /*! The keys go to the panel, or back from it. */
    function swapKeys(): void {
        const next = panel.activeFocus ? main : panel;
        next.forceActiveFocus(Qt.ShortcutFocusReason);
    }

    onOpenChanged: {
        settle();
        giveKeys();
    }
    onDockedChanged: {
        settle();
        giveKeys();
    }
    onPanelWidthChanged: settle()

    Swap {
        id: main

        x: drawer.docked ? drawer.panelWidth + Tokens.hairline : 0
        width: drawer.width - x
        height: drawer.height
        focus: true
        enabled: drawer.docked || !drawer.open
        controller: FirstFrame.over || FirstFrame.begun && (drawer.docked || !drawer.open) ? drawer.mainController : null
    }
    Rectangle {
        anchors.fill: parent
        visible: !drawer.docked && opacity > 0
        opacity: (drawer.panelWidth + panel.x) / drawer.panelWidth
        color: Tokens.colors.veil

        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            enabled: drawer.open
            onClicked: drawer.openRequested(false)
            onWheel: {}
        }
    }
    Swap {
        id: panel

        // settle() alone says where: a binding outlives what a Behavior takes over.
        width: drawer.panelWidth
        height: drawer.height
        visible: x > -width
        enabled: drawer.docked || drawer.open
        controller: FirstFrame.over || FirstFrame.begun && (drawer.docked || drawer.open) ? drawer.panelController : null
        Accessible.role: Accessible.Pane
        Accessible.name: drawer.panelName

        Behavior on x {
            enabled: FirstFrame.over && !drag.active && !edge.active && !drawer.docked
            NumberAnimation { duration: Tokens.normal; easing.type: Easing.OutCubic }
        }
        Rectangle {
            anchors.left: parent.right
            width: Tokens.hairline
            height: parent.height
            color: Tokens.colors.separator
        }
    }
    DragHandler {
        id: drag

        target: panel
        enabled: !drawer.docked && drawer.open
        yAxis.enabled: false
        xAxis.minimum: -drawer.panelWidth
        xAxis.maximum: 0
        dragThreshold: 16
        onActiveChanged: {
            if (active)
                return;
            const wanted = panel.x > -drawer.panelWidth * (drawer.open ? 0.25 : 0.75);
            if (wanted === drawer.open)
                drawer.settle();
            else
                drawer.openRequested(wanted);
        }
    }
    Item {
        width: Tokens.margin
        height: drawer.height
        visible: !drawer.docked && !drawer.open

        DragHandler {
            id: edge

            target: null
            yAxis.enabled: false
            dragThreshold: Tokens.unit
            onActiveTranslationChanged: if (active) panel.x = Math.max(-drawer.panelWidth, Math.min(0, activeTranslation.x - drawer.panelWidth))
            onActiveChanged: {
                if (active)
                    return;
                if (panel.x > -drawer.panelWidth * 0.75)
                    drawer.openRequested(true);
                drawer.settle();
            }
        }
    }
    Component.onCompleted: settle()
}
