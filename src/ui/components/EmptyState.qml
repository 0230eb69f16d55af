import QtQuick
import Kesto

/*! What stands where there is nothing yet. */
Column {
    id: empty

    property string picture
    property string title
    property string message

    spacing: Tokens.gap
    Accessible.role: Accessible.StaticText
    Accessible.name: title + " " + message

    Icon {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: empty.picture.length > 0
        name: empty.picture
        size: Tokens.largeIcon
        color: Tokens.colors.textDisabled
    }
    Label {
        width: parent.width
        visible: text.length > 0
        text: empty.title
        font.pixelSize: Tokens.textTitle
        horizontalAlignment: Text.AlignHCenter
    }
    Label {
        width: parent.width
        visible: text.length > 0
        text: empty.message
        color: Tokens.colors.textQuiet
        horizontalAlignment: Text.AlignHCenter
    }
}
