import QtQuick
import Kesto

/*!
    A wheel of titles of which the middle one is chosen: by dragging, the mouse wheel, a touch on it or on a neighbour,
    the arrow keys, Page Up and Down, Home and End, Enter, or by typing how a title begins. The title that stands in the
    middle may be chosen, too. A choice that is not taken turns back. One that still turns when it goes has chosen.
*/
Item {
    id: column

    required property var titles
    required property int current
    property string name

    signal chosen(int row)

    readonly property int rowHeight: Tokens.wheelRowHeight
    property int visibleRows: 5
    readonly property real naturalWidth: Math.min(widest(), Tokens.wheelWidth) + 2 * Tokens.gap
    readonly property alias moving: view.moving

    function widest(): real {
        let width = Tokens.rowHeight;
        let longest = 0;
        for (const title of titles) {
            if (title.length + 2 < longest)
                continue;
            longest = Math.max(longest, title.length);
            width = Math.max(width, metrics.advanceWidth(title));
        }
        return width;
    }
    function nearest(row: int): int {
        return Math.max(0, Math.min(titles.length - 1, row));
    }
    function turn(row: int): void {
        if (nearest(row) !== view.currentIndex)
            choose(row);
    }
    function choose(row: int): void {
        view.currentIndex = nearest(row);
        settle();
    }
    function settle(): void {
        if (view.currentIndex >= 0)
            chosen(view.currentIndex);
        follow();
    }
    function settleIfMoving(): void {
        if (view.moving)
            settle();
    }
    function follow(): void {
        if (current >= 0 && view.currentIndex !== current)
            view.currentIndex = current;
    }
    function typed(text: string): bool {
        typing.restart();
        typing.text += text.toLowerCase();
        const row = titles.findIndex(title => title.toLowerCase().startsWith(typing.text));
        if (row < 0) {
            typing.text = "";
            return false;
        }
        choose(row);
        return true;
    }

    implicitWidth: naturalWidth
    implicitHeight: visibleRows * rowHeight
    activeFocusOnTab: true
    Accessible.role: Accessible.SpinBox
    Accessible.name: name.length > 0 ? name + " " + (titles[current] ?? "") : (titles[current] ?? "")
    Accessible.focusable: true
    Accessible.onPressAction: choose(view.currentIndex)
    Accessible.onIncreaseAction: turn(view.currentIndex + 1)
    Accessible.onDecreaseAction: turn(view.currentIndex - 1)

    onCurrentChanged: if (!view.moving) follow()
    Component.onDestruction: settleIfMoving()

    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Up: turn(view.currentIndex - 1); break;
        case Qt.Key_Down: turn(view.currentIndex + 1); break;
        case Qt.Key_PageUp: turn(view.currentIndex - visibleRows); break;
        case Qt.Key_PageDown: turn(view.currentIndex + visibleRows); break;
        case Qt.Key_Home: turn(0); break;
        case Qt.Key_End: turn(titles.length - 1); break;
        case Qt.Key_Return:
        case Qt.Key_Enter:
            if (!event.isAutoRepeat)
                choose(view.currentIndex);
            event.accepted = false; // it answers a dialog, too
            break;
        default: event.accepted = event.text.trim().length > 0 && typed(event.text);
        }
    }

    FontMetrics {
        id: metrics

        font.family: Tokens.family
        font.pixelSize: Tokens.textTitle
    }
    Timer {
        id: typing

        property string text

        interval: 900
        onTriggered: text = ""
    }
    ListView {
        id: view

        anchors.fill: parent
        clip: true
        model: column.titles
        keyNavigationEnabled: false
        snapMode: ListView.SnapToItem
        highlightRangeMode: ListView.StrictlyEnforceRange
        preferredHighlightBegin: (height - column.rowHeight) / 2
        preferredHighlightEnd: preferredHighlightBegin + column.rowHeight
        highlightMoveDuration: Tokens.quick
        flickDeceleration: 3000
        maximumFlickVelocity: 3500
        boundsBehavior: Flickable.StopAtBounds
        Accessible.ignored: true
        onMovementStarted: column.forceActiveFocus(Qt.MouseFocusReason) // a field that had the keys tells what it holds
        onMovementEnded: column.settle()
        // Other titles begin with the first one.
        onModelChanged: place()
        Component.onCompleted: place()

        function place(): void {
            currentIndex = column.current;
            positionViewAtIndex(Math.max(0, column.current), ListView.SnapPosition);
        }

        delegate: Item {
            id: line

            required property string modelData
            required property int index

            width: ListView.view.width
            height: column.rowHeight

            Label {
                anchors.fill: parent
                anchors.leftMargin: Tokens.half
                anchors.rightMargin: Tokens.half
                text: line.modelData
                font.pixelSize: Tokens.textTitle
                font.weight: line.ListView.isCurrentItem ? Font.Normal : Font.Light
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 10
                wrapMode: Text.NoWrap
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                opacity: Math.max(0.25, 1 - 0.3 * Math.abs(line.index - view.currentIndex))
            }
            TapHandler {
                onTapped: {
                    column.forceActiveFocus(Qt.MouseFocusReason);
                    column.choose(line.index);
                }
            }
        }
        WheelHandler {
            property real turned: 0

            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            onWheel: event => {
                turned += event.angleDelta.y;
                const steps = Math.trunc(turned / 120);
                turned -= steps * 120;
                if (steps === 0)
                    return;
                column.forceActiveFocus(Qt.MouseFocusReason);
                column.turn(view.currentIndex - steps);
            }
        }
    }
    FocusRing { shown: column.activeFocus && Appearance.keysInUse }
}
