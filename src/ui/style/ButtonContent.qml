import QtQuick
import Kesto

/*! A picture and a text side by side, in the middle of the room there is; either may be empty. */
Item {
    id: content

    property string picture
    property string text
    property color ink: Tokens.colors.text
    property color pictureColor: ink
    property int spacing: Tokens.unit
    /*! To say how the text is set. */
    readonly property alias label: label
    readonly property real beforeText: icon.visible ? icon.width + (label.visible ? spacing : 0) : 0

    // Not the label's implicit width, which may change with its width.
    readonly property real textWidth: Math.ceil(metrics.advanceWidth) + 1

    implicitWidth: beforeText + (label.visible ? textWidth : 0)
    implicitHeight: Math.max(icon.visible ? icon.height : 0, label.visible ? label.height : 0)

    TextMetrics {
        id: metrics

        font: label.font
        text: content.text
    }
    Row {
        anchors.centerIn: parent
        spacing: content.spacing

        Icon {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            visible: name.length > 0
            name: content.picture
            color: content.pictureColor
        }
        Label {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(0, Math.min(content.textWidth, content.width - content.beforeText))
            visible: text.length > 0
            text: content.text
            color: content.ink
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
