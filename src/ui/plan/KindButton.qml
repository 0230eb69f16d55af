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

    contentItem: Row {
        spacing: Tokens.half

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: control.kind.image
            color: control.kind.selected ? Tokens.colors.accent : Tokens.colors.icon
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: control.kind.title
            wrapMode: Text.NoWrap
            font.pixelSize: Tokens.textSmall
        }
    }
    background: Rectangle {
        radius: Tokens.smallRadius
        color: control.down ? Tokens.colors.pressed : "transparent"

        FocusRing { shown: control.visualFocus }
    }
}
