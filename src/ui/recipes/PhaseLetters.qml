import QtQuick
import Kesto

/*! The letters of phases, each on its phase's colour. */
Row {
    id: letters

    required property var badges

    spacing: Tokens.half

    Repeater {
        model: letters.badges

        Rectangle {
            id: letter

            required property var modelData

            width: Math.max(height, label.implicitWidth + Tokens.unit)
            height: label.implicitHeight + 2
            radius: Tokens.half
            color: Qt.alpha(modelData.color, 0.3)
            border.width: Tokens.hairline
            border.color: modelData.color

            Label {
                id: label

                anchors.centerIn: parent
                text: letter.modelData.text
                font.pixelSize: Tokens.textCaption
                font.weight: Font.Medium
                wrapMode: Text.NoWrap
            }
        }
    }
}
