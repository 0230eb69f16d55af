import QtQuick
import Kesto

/*! A product: the sign of its kind, its name, the letters of its phases. */
FocusScope {
    id: cell

    required property TableLine line

    implicitHeight: Math.max(Tokens.productRowHeight, texts.height + Tokens.unit)
    Accessible.role: Accessible.ListItem
    Accessible.name: line.shown.value
    Accessible.focusable: true
    Accessible.onPressAction: touch.choose()

    RowSurface {
        anchors.fill: parent
        first: cell.line.shown.isFirst
        last: cell.line.shown.isLast
        inset: texts.x
        color: touch.pressed && touch.containsMouse ? Tokens.colors.pressed : Tokens.colors.surface
    }
    MouseArea {
        id: touch

        function choose(): void {
            cell.line.table.touched(cell.line);
            cell.line.controller.selectRow(cell.line.shown.section, cell.line.shown.row);
        }

        anchors.fill: parent
        onClicked: choose()
    }
    Icon {
        id: icon

        x: Tokens.margin
        anchors.verticalCenter: parent.verticalCenter
        name: cell.line.shown.image
    }
    Column {
        id: texts

        x: icon.x + icon.width + Tokens.gap
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width - x - Tokens.margin
        spacing: 2

        Label {
            width: parent.width
            text: cell.line.shown.title
            horizontalAlignment: Text.AlignLeft
        }
        PhaseLetters { badges: cell.line.shown.badges }
    }
    FocusRing {
        anchors.margins: 2
        shown: cell.line.current
    }
}
