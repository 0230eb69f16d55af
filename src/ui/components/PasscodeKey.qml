import QtQuick
import Kesto

/*! A round key with a digit; without one it takes the last digit back. */
Pressable {
    id: control

    required property string digit

    opacity: enabled ? 1 : 0.4
    Accessible.name: digit.length > 0 ? digit : Texts.localized("Delete")

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: control.digit.length === 0 ? "transparent" : control.down ? Tokens.colors.pressed : Tokens.colors.surface
        border.width: control.digit.length === 0 ? 0 : Tokens.hairline
        border.color: Tokens.colors.separator

        FocusRing {
            radius: height / 2
            shown: control.visualFocus
        }
    }
    Label {
        anchors.centerIn: parent
        visible: control.digit.length > 0
        text: control.digit
        font.pixelSize: Math.min(Tokens.textHuge, control.height * 0.5)
        font.weight: Font.Light
    }
    Icon {
        anchors.centerIn: parent
        visible: control.digit.length === 0
        name: "keyboard_delete"
        color: Tokens.colors.tint
    }
}
