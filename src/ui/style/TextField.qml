import QtQuick
import Kesto

/*!
    One line of text. Enter and leaving the field commit what was typed; Escape brings back what was there.
    The text that is shown is \a value until the user types.
*/
TextInput {
    id: control

    /*! What the field holds outside of an edit. */
    property string value
    /*! For those who do not see the label beside it. */
    property string name
    property string placeholderText
    property color fill: Tokens.colors.field
    /*! The width of the line around a field that is not entered. */
    property int frame: 0
    /*! What the text and the placeholder need. */
    readonly property real naturalWidth: Math.max(contentWidth, hint.implicitWidth) + leftPadding + rightPadding + Tokens.half
    readonly property real above: Math.max(Tokens.half, (Tokens.rowHeight - contentHeight) / 2)
    /*! Something was typed that is not committed yet. */
    property bool typed: false

    /*! The user typed this, be it what was there before, and is done. */
    signal committed(string text)
    signal began
    /*! The field has nothing more to do with the keys: it was left by Enter, or else by Escape. */
    signal finished(bool entered)

    function commit(): void {
        if (!typed)
            return;
        typed = false;
        committed(text);
        text = Qt.binding(() => control.value);
    }
    function revert(): void {
        typed = false;
        text = Qt.binding(() => control.value);
    }

    text: value
    font.family: Tokens.family
    font.pixelSize: Tokens.textBody
    color: enabled ? Tokens.colors.text : Tokens.colors.textDisabled
    selectionColor: Tokens.colors.accent
    selectedTextColor: Tokens.colors.accentInk
    selectByMouse: true
    verticalAlignment: TextInput.AlignVCenter
    leftPadding: Tokens.gap
    rightPadding: Tokens.gap
    // The height, which can't be set, comes of them.
    topPadding: above
    bottomPadding: above
    activeFocusOnTab: true

    Accessible.role: Accessible.EditableText
    Accessible.name: name.length > 0 ? name : placeholderText
    Accessible.description: placeholderText

    onTextEdited: typed = true
    onActiveFocusChanged: {
        if (activeFocus) {
            selectAll();
            began();
        } else {
            deselect();
            commit();
        }
    }
    Keys.onReturnPressed: finishEdit()
    Keys.onEnterPressed: finishEdit()
    Keys.onEscapePressed: {
        revert();
        finished(false);
    }

    function finishEdit(): void {
        commit();
        finished(true);
    }

    HoverHandler { cursorShape: Qt.IBeamCursor }
    Rectangle {
        anchors.fill: parent
        z: -1
        radius: Tokens.smallRadius
        color: control.fill
        border.width: control.activeFocus ? Tokens.focusWidth : control.frame
        border.color: control.activeFocus ? Tokens.colors.focus : Tokens.colors.separator
    }
    Loader {
        id: hint

        x: control.leftPadding
        width: control.width - control.leftPadding - control.rightPadding
        height: control.height
        visible: control.length === 0 && control.preeditText.length === 0
        active: control.placeholderText.length > 0
        sourceComponent: Label {
            text: control.placeholderText
            color: Tokens.colors.textQuiet
            font: control.font
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
            horizontalAlignment: control.effectiveHorizontalAlignment
            verticalAlignment: Text.AlignVCenter
        }
    }
}
