import QtQuick
import Kesto

/*! A field of several lines that grows with its text, edited as FieldEdit says. */
FocusScope {
    id: row

    property string title
    property alias text: edit.value
    /*! The object that the text belongs to. */
    property alias subject: edit.subject
    property string placeholder
    property bool available: true
    property bool first: true
    property bool last: true
    property bool current: false
    readonly property alias field: area

    signal committed(string subject, string text)
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
        onClicked: area.forceActiveFocus(Qt.MouseFocusReason)
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
            id: area

            width: parent.width
            focus: true
            text: edit.current
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
                    edit.enter();
                    row.began();
                } else {
                    edit.commit();
                }
            }
            onTextChanged: if (activeFocus && text !== edit.current) edit.typed = true
            Keys.onEscapePressed: {
                edit.revert();
                row.finished();
            }
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

            Label {
                width: parent.width
                visible: area.length === 0 && area.preeditText.length === 0
                text: row.placeholder
                color: Tokens.colors.textQuiet
            }
        }
    }
    FieldEdit {
        id: edit

        field: area
        onCommitted: (subject, text) => row.committed(subject, text)
    }
    FocusRing {
        anchors.margins: 2
        shown: row.current || area.activeFocus
    }
}
