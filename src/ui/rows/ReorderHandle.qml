import QtQuick
import Kesto

/*! What moves a row in its list: drag it, or press Up and Down while it has the keyboard. */
Item {
    id: handle

    property string name

    signal lifted
    /*! How far from where it was lifted. */
    signal carried(real by)
    signal dropped
    signal stepped(int by)

    implicitWidth: Tokens.rowHeight
    implicitHeight: Tokens.rowHeight
    Accessible.role: Accessible.Button
    Accessible.name: Texts.localized("Move") + " " + name
    Keys.onUpPressed: stepped(-1)
    Keys.onDownPressed: stepped(1)

    Icon {
        anchors.centerIn: parent
        name: "reorder"
        color: Tokens.colors.textQuiet
    }
    MouseArea {
        property real from: 0

        anchors.fill: parent
        preventStealing: true
        cursorShape: Qt.SizeVerCursor
        onPressed: mouse => {
            from = mapToItem(null, mouse.x, mouse.y).y;
            handle.lifted();
        }
        onPositionChanged: mouse => handle.carried(mapToItem(null, mouse.x, mouse.y).y - from)
        onReleased: handle.dropped()
        onCanceled: {
            handle.carried(0);
            handle.dropped();
        }
    }
    FocusRing { shown: handle.activeFocus }
}
