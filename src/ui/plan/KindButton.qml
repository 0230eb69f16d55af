import QtQuick
import QtQuick.Templates as T
import Kesto

/*! A kind of the day with a check. */
T.AbstractButton {
    id: control

    required property CalKindButton kind

    visible: kind.visible
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Tokens.rowHeight, contentItem.implicitHeight)
    leftPadding: Tokens.unit
    rightPadding: Tokens.unit
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.4

    Accessible.role: Accessible.CheckBox
    Accessible.name: kind.title
    Accessible.checkable: true
    Accessible.checked: kind.selected
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    contentItem: ButtonContent {
        picture: control.kind.image
        pictureColor: control.kind.selected ? Tokens.colors.accent : Tokens.colors.icon
        text: control.kind.title
        spacing: Tokens.half
        label.font.pixelSize: Tokens.textSmall
        label.horizontalAlignment: Text.AlignLeft
    }
    background: Rectangle {
        radius: Tokens.smallRadius
        color: control.down ? Tokens.colors.pressed : "transparent"

        FocusRing { shown: control.visualFocus }
    }
}
