import QtQuick
import Kesto

/*! A line of the legend: a sign or a letter, and what it means. */
Item {
    id: cell

    required property TableLine line

    implicitHeight: Math.max(Tokens.rowHeight, title.height + 2 * Tokens.unit)
    Accessible.role: Accessible.ListItem
    Accessible.name: line.shown.title

    RowSurface {
        anchors.fill: parent
        first: cell.line.shown.isFirst
        last: cell.line.shown.isLast
        inset: title.x
    }
    Item {
        id: sign

        x: Tokens.margin
        anchors.verticalCenter: parent.verticalCenter
        width: Tokens.icon
        height: Tokens.icon

        Icon {
            anchors.centerIn: parent
            visible: cell.line.shown.image.length > 0
            name: cell.line.shown.image
        }
        PhaseLetters {
            anchors.centerIn: parent
            badges: cell.line.shown.badges
        }
    }
    Label {
        id: title

        x: sign.x + sign.width + Tokens.gap
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width - x - Tokens.margin
        text: cell.line.shown.title
    }
}
