import QtQuick
import Kesto

/*! A kind of the day with a check. */
Pressable {
    id: control

    required property CalKindButton kind

    visible: kind.visible
    implicitWidth: content.implicitWidth + 2 * content.x
    implicitHeight: Math.max(Tokens.rowHeight, content.implicitHeight)
    opacity: enabled ? 1 : 0.4

    Accessible.role: Accessible.CheckBox
    Accessible.name: kind.title
    Accessible.checkable: true
    Accessible.checked: kind.selected
    Accessible.onToggleAction: if (enabled) clicked()

    Rectangle {
        anchors.fill: parent
        radius: Tokens.smallRadius
        color: control.down ? Tokens.colors.pressed : "transparent"

        FocusRing { shown: control.visualFocus }
    }
    ButtonContent {
        id: content

        x: Tokens.unit
        width: control.width - 2 * x
        height: control.height
        picture: control.kind.image
        pictureColor: control.kind.selected ? Tokens.colors.accent : Tokens.colors.icon
        text: control.kind.title
        spacing: Tokens.half
        label.font.pixelSize: Tokens.textSmall
        label.horizontalAlignment: Text.AlignLeft
    }
}
