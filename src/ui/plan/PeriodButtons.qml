import QtQuick
import Kesto

/*! Four buttons that choose the phases a dish fits. */
Row {
    id: buttons

    required property DietPeriodsSelector selector

    Repeater {
        model: buttons.selector

        Pressable {
            id: button

            required property int tag
            required property string title
            required property string image
            required property string pressedImage
            required property color color
            required property bool selected
            required enabled

            width: buttons.width / 4
            implicitHeight: Math.max(Tokens.rowHeight, content.implicitHeight + Tokens.unit)
            Accessible.role: Accessible.CheckBox
            Accessible.name: title
            Accessible.checkable: true
            Accessible.checked: selected
            Accessible.onToggleAction: if (enabled) clicked()
            onClicked: buttons.selector.buttonTouched(tag)

            FocusRing { shown: button.visualFocus }
            Column {
                id: content

                width: button.width
                spacing: 2

                Icon {
                    anchors.horizontalCenter: parent.horizontalCenter
                    name: button.down ? button.pressedImage : button.image
                    color: button.selected ? button.color : Tokens.colors.textDisabled
                }
                Label {
                    width: parent.width
                    text: button.title
                    font.pixelSize: Tokens.textOfPeriods
                    font.weight: Font.Light
                    horizontalAlignment: Text.AlignHCenter
                    color: button.selected ? Tokens.colors.text : Tokens.colors.textQuiet
                }
            }
        }
    }
}
