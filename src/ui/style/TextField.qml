import QtQuick
import Kesto

/*! One line of text, edited as FieldEdit says. Enter leaves the field. */
TextInput {
    id: control

    /*! What the field shows until the user types, and the object that this belongs to. */
    property alias value: edit.value
    property alias subject: edit.subject
    /*! For screen readers; unless given, the placeholder. */
    property string name
    property string placeholderText
    property color fill: Tokens.colors.field
    /*! The width of the line around a field that is not entered. */
    property int frame: 0
    /*! What the text and the placeholder need. */
    readonly property real naturalWidth: Math.max(contentWidth, hint.implicitWidth) + leftPadding + rightPadding + Tokens.half
    readonly property real above: Math.max(Tokens.half, (Tokens.rowHeight - contentHeight) / 2)

    /*! The user typed this, be it what was there before, and left the field. */
    signal committed(string subject, string text)
    signal began
    /*! The user left the field by Enter, or else by Escape. */
    signal finished(bool entered)

    function commit(): void {
        edit.commit();
    }
    function revert(): void {
        edit.revert();
    }

    text: edit.current
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

    onTextEdited: edit.typed = true
    onActiveFocusChanged: {
        if (activeFocus) {
            edit.enter();
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

    FieldEdit {
        id: edit

        field: control
        onCommitted: (subject, text) => control.committed(subject, text)
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
