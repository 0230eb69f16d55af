import QtQuick
import Kesto

/*! A line of the shopping list: a touch ticks it off, the field at the right takes how much of it. */
FocusScope {
    id: cell

    required property TableLine line
    /*! The line that the field was entered for, and what it had: rows may change their places meanwhile. */
    property string edited
    property string before
    /*! Of the field: what the title leaves, and a good third beside a long one. */
    readonly property real room: Math.max(0.36 * width, width - title.x - title.implicitWidth - Tokens.gap - Tokens.unit)
    readonly property color ink: line.struckThrough ? Tokens.colors.textDisabled : Tokens.colors.text

    implicitHeight: Math.max(Tokens.rowHeight + 2 * Tokens.half, title.height + 2 * Tokens.unit)
    Accessible.role: Accessible.CheckBox
    Accessible.name: Texts.joined([line.title, line.text])
    Accessible.checkable: true
    Accessible.checked: line.checked
    Accessible.focusable: true
    Accessible.onPressAction: touch.choose()

    RowSurface {
        anchors.fill: parent
        first: cell.line.isFirst
        last: cell.line.isLast
        inset: title.x
        color: touch.pressed && touch.containsMouse ? Tokens.colors.pressed : Tokens.colors.surface
    }
    MouseArea {
        id: touch

        function choose(): void {
            cell.line.table.touched(cell.line);
            cell.line.controller.selectRow(cell.line.section, cell.line.row);
        }

        anchors.fill: parent
        enabled: !cell.line.deleteShown
        onClicked: choose()
    }
    Icon {
        id: tick

        x: Tokens.margin
        anchors.verticalCenter: parent.verticalCenter
        name: cell.line.checked ? "Checked" : "Unchecked"
        color: cell.line.checked ? Tokens.colors.accent : Tokens.colors.textDisabled
    }
    Label {
        id: title

        x: tick.x + tick.width + Tokens.gap
        anchors.verticalCenter: parent.verticalCenter
        width: field.x - Tokens.gap - x
        text: cell.line.title
        color: cell.ink
        font.strikeout: cell.line.struckThrough
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
        value: cell.edited.length > 0 ? cell.before : cell.line.text
        name: Texts.localized("Quantity") + ": " + cell.line.title
        placeholderText: cell.line.placeholder
        horizontalAlignment: TextInput.AlignHCenter
        color: cell.ink
        font.strikeout: cell.line.struckThrough && length > 0
        activeFocusOnTab: cell.line.ListView.isCurrentItem || activeFocus
        // A long quantity is read from its beginning.
        onTextChanged: if (!activeFocus) cursorPosition = 0
        onActiveFocusChanged: {
            if (activeFocus)
                return;
            cursorPosition = 0;
            commit();
            cell.edited = "";
        }
        onBegan: {
            cell.before = cell.line.text;
            cell.edited = cell.line.value;
            cell.line.table.fieldEntered(cell.line);
        }
        onCommitted: text => {
            (cell.line.controller as CartViewController).endEditingCount(cell.edited, text);
            cell.edited = "";
        }
        onFinished: {
            cell.edited = "";
            cell.line.table.fieldLeft();
        }
    }
    FocusRing {
        anchors.margins: 2
        shown: cell.line.current && !field.activeFocus
    }
}
