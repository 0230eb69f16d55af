import QtQuick
import Kesto

/*! A thin bar at the side of what scrolls. It shows while that moves, or a pointer is on it, and can be dragged. */
MouseArea {
    id: bar

    required property Flickable view
    property bool upright: true
    /*! What of the whole is in sight, and where. */
    readonly property real part: upright ? view.visibleArea.heightRatio : view.visibleArea.widthRatio
    readonly property real place: upright ? view.visibleArea.yPosition : view.visibleArea.xPosition
    readonly property real room: (upright ? height : width) - 4
    readonly property bool active: pressed || pointer.hovered || (upright ? view.movingVertically : view.movingHorizontally)
    /*! Where the handle was taken, as a part of the bar. */
    property real taken: 0

    function pointed(): real {
        return ((upright ? mouseY : mouseX) - 2) / room;
    }
    function drag(): void {
        const to = Math.max(0, Math.min(1 - part, pointed() - taken));
        if (upright)
            view.contentY = view.originY - view.topMargin + to * view.height / part;
        else
            view.contentX = view.originX - view.leftMargin + to * view.width / part;
    }

    parent: view
    x: upright ? view.width - width : 0
    y: upright ? 0 : view.height - height
    z: 1
    width: upright ? Tokens.unit : view.width
    height: upright ? view.height : Tokens.unit
    visible: part < 1
    preventStealing: true
    Accessible.ignored: true
    onPressed: {
        view.cancelFlick();
        // Beside the handle, its middle comes to where the press is.
        taken = pointed() - place;
        if (taken < 0 || taken > Math.max(part, handle.part))
            taken = part / 2;
    }
    onPositionChanged: if (pressed) drag()
    onReleased: drag()

    // The area itself would believe the pointer still there after it was hidden.
    HoverHandler { id: pointer }
    Rectangle {
        id: handle

        readonly property real part: Math.max(0.08, bar.part)
        readonly property real place: Math.max(0, Math.min(1, bar.place / (1 - bar.part))) * (1 - part)

        x: bar.upright ? 2 : 2 + place * bar.room
        y: bar.upright ? 2 + place * bar.room : 2
        width: bar.upright ? bar.width - 4 : part * bar.room
        height: bar.upright ? part * bar.room : bar.height - 4
        radius: 2
        color: Tokens.colors.textQuiet
        opacity: bar.active ? 0.6 : 0

        Behavior on opacity { NumberAnimation { duration: Tokens.normal } }
    }
}
