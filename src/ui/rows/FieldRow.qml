import QtQuick
import Kesto

/*! A title with a field and its unit. Where both do not fit, the field goes under the title. */
ListRow {
    id: row

    property string text
    /*! The object that the text belongs to. */
    property string subject
    property string placeholder
    property string unit
    /*! The width for the unit; where fields stand one under the other, that of the widest. */
    property real unitWidth: naturalUnitWidth
    readonly property real naturalUnitWidth: unit.implicitWidth
    property int keyboard: Keyboard.Text
    readonly property alias field: field

    signal committed(string subject, string text)
    signal began
    /*! The user left the field by Enter, or else by Escape. */
    signal finished(bool entered)

    selectable: true
    role: Accessible.Grouping
    onActivated: field.forceActiveFocus(Qt.MouseFocusReason)

    Row {
        spacing: Tokens.unit

        TextField {
            id: field

            readonly property real natural: Math.max(naturalWidth, row.keyboard === Keyboard.Text || row.keyboard === Keyboard.Email ? 160 : 72)

            focus: true
            width: row.title.length === 0 ? row.width - 2 * Tokens.margin - (unit.visible ? unit.width + Tokens.unit : 0) - (row.picture.length > 0 ? Tokens.icon + Tokens.gap : 0)
                : Math.min(natural, row.width - 2 * Tokens.margin - unit.width - Tokens.unit)
            enabled: row.available
            value: row.text
            subject: row.subject
            name: Texts.joined([row.title, row.unit])
            placeholderText: row.placeholder
            horizontalAlignment: row.title.length === 0 ? TextInput.AlignLeft : TextInput.AlignRight
            font.strikeout: row.struckThrough
            color: row.struckThrough || !row.available ? Tokens.colors.textDisabled : Tokens.colors.text
            inputMethodHints: row.keyboard === Keyboard.Decimal ? Qt.ImhFormattedNumbersOnly
                : row.keyboard === Keyboard.Number ? Qt.ImhDigitsOnly
                : row.keyboard === Keyboard.Email ? Qt.ImhEmailCharactersOnly : Qt.ImhNone
            activeFocusOnTab: false
            onCommitted: (subject, text) => row.committed(subject, text)
            onBegan: row.began()
            onFinished: entered => row.finished(entered)
        }
        Label {
            id: unit

            visible: text.length > 0
            width: row.unitWidth
            height: field.height
            text: row.unit
            color: row.quiet
            wrapMode: Text.NoWrap
            verticalAlignment: Text.AlignVCenter
        }
    }
}
