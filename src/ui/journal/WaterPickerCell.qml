import QtQuick
import Kesto

/*! A row with the portions of drink; its value is a WaterPicker. */
FocusScope {
    id: cell

    required property TableLine line

    implicitHeight: content.height + 2 * content.y
    Accessible.role: Accessible.Grouping
    Accessible.name: line.shown.title

    RowSurface {
        anchors.fill: parent
        first: cell.line.shown.isFirst
        last: cell.line.shown.isLast
    }
    Column {
        id: content

        x: Tokens.unit
        y: Tokens.unit
        width: parent.width - 2 * x
        spacing: Tokens.unit

        Row {
            x: Tokens.unit
            spacing: Tokens.gap

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: cell.line.shown.image
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: cell.line.shown.title
            }
        }
        PortionPicker {
            width: parent.width
            focus: true
            name: cell.line.shown.title
            picker: cell.line.shown.value as WaterPicker
        }
    }
    FocusRing {
        anchors.margins: 2
        shown: cell.line.current && !cell.activeFocus
    }
}
