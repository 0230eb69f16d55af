import QtQuick
import QtQuick.Templates as T
import Kesto

/*!
    One line of text. Enter and leaving the field commit what was typed; Escape brings back what was there.
    The text that is shown is \a value until the user types.
*/
T.TextField {
    id: control

    /*! What the field holds outside of an edit. */
    property string value
    /*! For those who do not see the label beside it. */
    property string name
    property bool plain: false
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
    placeholderTextColor: Tokens.colors.textQuiet
    selectionColor: Tokens.colors.accent
    selectedTextColor: Tokens.colors.accentInk
    selectByMouse: true
    verticalAlignment: TextInput.AlignVCenter
    implicitWidth: Math.max(contentWidth, hint.implicitWidth) + leftPadding + rightPadding + Tokens.half
    implicitHeight: Math.max(plain ? 0 : Tokens.rowHeight, contentHeight + topPadding + bottomPadding)
    leftPadding: plain ? 0 : Tokens.gap
    rightPadding: plain ? 0 : Tokens.gap
    topPadding: Tokens.half
    bottomPadding: Tokens.half
    activeFocusOnTab: true

    Accessible.role: Accessible.EditableText
    Accessible.name: name.length > 0 ? name : placeholderText

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

    Label {
        id: hint

        x: control.leftPadding
        width: control.width - control.leftPadding - control.rightPadding
        height: control.height
        visible: control.length === 0 && control.preeditText.length === 0
        text: control.placeholderText
        color: control.placeholderTextColor
        font: control.font
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        horizontalAlignment: control.effectiveHorizontalAlignment
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        visible: !control.plain
        radius: Tokens.smallRadius
        color: Tokens.colors.field
        border.width: control.activeFocus ? Tokens.focusWidth : 0
        border.color: Tokens.colors.focus
    }
}
