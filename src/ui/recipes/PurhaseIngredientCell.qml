import QtQuick
import Kesto

/*! A line of the shopping list: a touch ticks it off, the field at the right takes how much of it. */
FocusScope {
    id: cell

    required property TableLine line
    /*! Of the field: what the title leaves, and a good third beside a long one. */
    readonly property real room: Math.max(0.36 * width, width - title.x - title.implicitWidth - Tokens.gap - Tokens.unit)
    readonly property color ink: line.shown.struckThrough ? Tokens.colors.textDisabled : Tokens.colors.text

    implicitHeight: Math.max(Tokens.rowHeight + 2 * Tokens.half, title.height + 2 * Tokens.unit)
    Accessible.role: Accessible.CheckBox
    Accessible.name: Texts.joined([line.shown.title, line.shown.text])
    Accessible.checkable: true
    Accessible.checked: line.shown.checked
    Accessible.focusable: true
    Accessible.onPressAction: touch.choose()

    RowSurface {
        anchors.fill: parent
        first: cell.line.shown.isFirst
        last: cell.line.shown.isLast
        inset: title.x
        color: touch.pressed && touch.containsMouse ? Tokens.colors.pressed : Tokens.colors.surface
    }
    MouseArea {
        id: touch

        function choose(): void {
            cell.line.table.touched(cell.line);
            cell.line.controller.selectRow(cell.line.shown.section, cell.line.shown.row);
        }

        anchors.fill: parent
        enabled: !cell.line.deleteShown
        onClicked: choose()
    }
    Icon {
        id: tick

        x: Tokens.margin
        anchors.verticalCenter: parent.verticalCenter
        name: cell.line.shown.checked ? "Checked" : "Unchecked"
        color: cell.line.shown.checked ? Tokens.colors.accent : Tokens.colors.textDisabled
    }
    Label {
        id: title

        x: tick.x + tick.width + Tokens.gap
        anchors.verticalCenter: parent.verticalCenter
        width: field.x - Tokens.gap - x
        text: cell.line.shown.title
        color: cell.ink
        font.strikeout: cell.line.shown.struckThrough
        horizontalAlignment: Text.AlignLeft
        maximumLineCount: 8
        elide: Text.ElideRight
    }
    TextField {
        id: field

        anchors.right: parent.right
        anchors.rightMargin: Tokens.unit
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(Tokens.quantityWidth, Math.min(naturalWidth, cell.room))
        value: cell.line.shown.text
        subject: cell.line.shown.id
        name: Texts.localized("Quantity") + ": " + cell.line.shown.title
        placeholderText: cell.line.shown.placeholder
        horizontalAlignment: TextInput.AlignHCenter
        color: cell.ink
        font.strikeout: cell.line.shown.struckThrough && length > 0
        activeFocusOnTab: cell.line.ListView.isCurrentItem || activeFocus
        // A long quantity is read from its beginning.
        onTextChanged: if (!activeFocus) cursorPosition = 0
        onActiveFocusChanged: if (!activeFocus) cursorPosition = 0
        onBegan: cell.line.table.fieldEntered(cell.line)
        onCommitted: (subject, text) => cell.line.controller.endEditingText(cell.line.shown.section, subject, text)
        onFinished: cell.line.table.fieldLeft()
    }
    FocusRing {
        anchors.margins: 2
        shown: cell.line.current && !field.activeFocus
    }
}
