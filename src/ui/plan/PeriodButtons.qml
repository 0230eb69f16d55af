import QtQuick
import QtQuick.Templates as T
import Kesto

/*! Four buttons that choose the phases a dish fits. */
Row {
    id: buttons

    required property DietPeriodsSelector selector

    Repeater {
        model: buttons.selector

        T.AbstractButton {
            id: button

            required property int tag
            required property string title
            required property string image
            required property color color
            required property bool selected
            required enabled

            width: buttons.width / 4
            implicitHeight: Math.max(Tokens.rowHeight, contentItem.implicitHeight + Tokens.unit)
            focusPolicy: Qt.StrongFocus
            Accessible.role: Accessible.CheckBox
            Accessible.name: title
            Accessible.checkable: true
            Accessible.checked: selected
            onClicked: buttons.selector.buttonTouched(tag)
            Keys.onReturnPressed: button.clicked()
            Keys.onEnterPressed: button.clicked()

            contentItem: Column {
                spacing: 2

                Icon {
                    anchors.horizontalCenter: parent.horizontalCenter
                    name: button.image
                    color: button.selected ? button.color : Tokens.colors.textDisabled
                }
                Label {
                    width: parent.width
                    text: button.title
                    font.pixelSize: Math.round(10 * Tokens.textScale)
                    horizontalAlignment: Text.AlignHCenter
                    color: button.selected ? Tokens.colors.text : Tokens.colors.textQuiet
                }
            }
            background: Item {
                FocusRing { shown: button.visualFocus }
            }
        }
    }
}
