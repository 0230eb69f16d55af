import QtQuick
import QtQuick.Templates as T
import Kesto

/*! A round key with a digit; without one it takes the last digit back. */
T.AbstractButton {
    id: control

    required property string digit

    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.4
    Accessible.role: Accessible.Button
    Accessible.name: digit.length > 0 ? digit : Texts.localized("Delete")
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    contentItem: Item {
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
    background: Rectangle {
        radius: height / 2
        color: control.digit.length === 0 ? "transparent" : control.down ? Tokens.colors.pressed : Tokens.colors.surface
        border.width: control.digit.length === 0 ? 0 : Tokens.hairline
        border.color: Tokens.colors.separator

        FocusRing {
            radius: height / 2
            shown: control.visualFocus
        }
    }
}
