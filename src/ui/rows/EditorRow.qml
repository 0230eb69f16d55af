import QtQuick
import Kesto

/*! A field of several lines that grows with its text. Escape leaves it; what was typed stays. */
FocusScope {
    id: row

    property string title
    property string text
    property string placeholder
    property bool available: true
    property bool first: true
    property bool last: true
    property bool current: false
    property alias field: edit

    signal committed(string text)
    signal began
    signal finished

    implicitHeight: Math.max(3 * Tokens.rowHeight, column.height + 2 * Tokens.gap)

    RowSurface {
        anchors.fill: parent
        first: row.first
        last: row.last
    }
    MouseArea {
        anchors.fill: parent
        onClicked: edit.forceActiveFocus(Qt.MouseFocusReason)
    }
    Column {
        id: column

        x: Tokens.margin
        y: Tokens.gap
        width: parent.width - 2 * Tokens.margin
        spacing: Tokens.half

        Label {
            width: parent.width
            visible: text.length > 0
            text: row.title
            color: Tokens.colors.textQuiet
            font.pixelSize: Tokens.textSmall
        }
        TextEdit {
            id: edit

            width: parent.width
            focus: true
            text: row.text
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            readOnly: !row.available
            color: Tokens.colors.text
            selectionColor: Tokens.colors.accent
            selectedTextColor: Tokens.colors.accentInk
            selectByMouse: true
            font.family: Tokens.family
            font.pixelSize: Tokens.textBody
            Accessible.role: Accessible.EditableText
            Accessible.name: row.title.length > 0 ? row.title : row.placeholder
            Accessible.multiLine: true
            onActiveFocusChanged: {
                if (activeFocus) {
                    row.began();
                } else {
                    row.committed(text);
                    text = Qt.binding(() => row.text);
                }
            }
            Keys.onEscapePressed: row.finished()
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

            Label {
                width: parent.width
                visible: edit.length === 0 && edit.preeditText.length === 0
                text: row.placeholder
                color: Tokens.colors.textQuiet
            }
        }
    }
    FocusRing {
        anchors.margins: 2
        shown: row.current || edit.activeFocus
    }
}
