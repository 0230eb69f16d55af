import QtQuick
import Kesto

/*! A button with a picture and its name beside it; filled while it is chosen. */
Pressable {
    id: chip

    required property JornalButton button
    readonly property bool chosen: button.selected

    implicitHeight: Math.max(Tokens.rowHeight, label.height + Tokens.unit)
    enabled: button.enabled
    Accessible.role: button.choosable ? Accessible.CheckBox : Accessible.Button
    Accessible.name: button.name
    Accessible.checkable: button.choosable
    Accessible.checked: chosen
    Accessible.onToggleAction: if (enabled) clicked()

    Rectangle {
        anchors.fill: parent
        radius: Tokens.smallRadius
        color: chip.chosen ? Tokens.colors.accent : chip.down ? Tokens.colors.pressed : Tokens.colors.field
        opacity: chip.chosen && chip.down ? 0.8 : 1

        FocusRing { shown: chip.visualFocus }
    }
    Icon {
        id: icon

        x: Tokens.gap
        anchors.verticalCenter: parent.verticalCenter
        name: chip.button.image
        color: chip.chosen ? Tokens.colors.accentInk : Tokens.colors.icon
    }
    Label {
        id: label

        x: icon.x + icon.width + Tokens.unit
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width - x - Tokens.half
        text: chip.button.name
        color: chip.chosen ? Tokens.colors.accentInk : Tokens.colors.text
        font.pixelSize: Tokens.textSmall
        horizontalAlignment: Text.AlignLeft
    }
}
