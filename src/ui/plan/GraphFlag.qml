import QtQuick
import Kesto

/*! Marks a point of a graph and names it; stays within the graph. */
Item {
    id: flag

    property string text
    property point point

    anchors.fill: parent

    Rectangle {
        x: flag.point.x - width / 2
        width: Tokens.hairline
        height: flag.height
        color: Tokens.colors.accentText
        opacity: 0.5
    }
    Rectangle {
        x: flag.point.x - width / 2
        y: flag.point.y - height / 2
        width: Tokens.dot
        height: width
        radius: width / 2
        color: Tokens.colors.accentText
        border.width: Tokens.focusWidth
        border.color: Tokens.colors.surface
    }
    Rectangle {
        // Beside the point where it would cover it.
        readonly property bool below: flag.point.y - height - Tokens.gap < 0

        x: Math.max(0, Math.min(flag.width - width, flag.point.x - width / 2))
        y: below ? flag.point.y + Tokens.gap : flag.point.y - height - Tokens.gap
        width: label.implicitWidth + 2 * Tokens.unit
        height: label.implicitHeight + 2 * Tokens.half
        radius: Tokens.smallRadius
        color: Tokens.colors.accentText

        Label {
            id: label

            anchors.centerIn: parent
            text: flag.text
            wrapMode: Text.NoWrap
            color: Tokens.colors.accentInk
            font.pixelSize: Tokens.textSmall
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
