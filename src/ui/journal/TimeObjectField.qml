import QtQuick
import Kesto

/*! A value and its unit. */
FocusScope {
    id: part

    property string text
    property string unit
    property string name
    /*! What the field is for. */
    property int tag
    /*! The widest that it may be: a unit that does not fit beside the field goes below. */
    property real room: implicitWidth
    readonly property bool below: implicitWidth > room

    signal began
    signal committed(int tag, string text)
    signal finished
    /*! Tab, and with Shift. */
    signal tabbed(int by, var event)

    function take(): void {
        field.forceActiveFocus(Qt.TabFocusReason);
    }

    implicitWidth: field.wanted + Tokens.unit + Math.ceil(label.implicitWidth)
    implicitHeight: below ? label.y + label.height : field.height
    width: Math.min(implicitWidth, room)
    height: implicitHeight

    TextField {
        id: field

        focus: true
        readonly property real wanted: Math.min(Math.max(Tokens.quantityWidth, naturalWidth), 2 * Tokens.quantityWidth)

        width: Math.min(wanted, part.room)
        value: part.text
        name: part.name
        horizontalAlignment: TextInput.AlignRight
        inputMethodHints: Qt.ImhFormattedNumbersOnly
        activeFocusOnTab: false
        onBegan: part.began()
        subject: String(part.tag)
        onCommitted: (subject, text) => part.committed(Number(subject), text)
        onFinished: part.finished()
        Keys.onTabPressed: event => part.tabbed(1, event)
        Keys.onBacktabPressed: event => part.tabbed(-1, event)
    }
    Label {
        id: label

        x: part.below ? 0 : field.width + Tokens.unit
        y: part.below ? field.height : 0
        width: part.below ? part.room : implicitWidth
        height: part.below ? implicitHeight : field.height
        text: part.unit
        color: Tokens.colors.textQuiet
        font.pixelSize: Tokens.textSmall
        wrapMode: part.below ? Tokens.wrapMode : Text.NoWrap
        verticalAlignment: Text.AlignVCenter
    }
}
