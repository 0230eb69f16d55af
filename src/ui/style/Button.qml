import QtQuick
import Kesto

/*! A push button: plain text, filled with the accent (primary), or red (destructive); with a picture or without. */
Pressable {
    id: control

    property string text
    property bool primary: false
    property bool destructive: false
    property string picture
    property int textSize: Tokens.textBody
    /*! What a primary button is filled with. */
    property color fill: enabled ? Tokens.colors.accent : Tokens.colors.trackOff
    property int radius: Tokens.smallRadius
    readonly property color ink: !enabled ? Tokens.colors.textDisabled
        : primary ? Tokens.colors.accentInk
        : destructive ? Tokens.colors.destructive : Tokens.colors.accentText

    implicitWidth: Math.max(Tokens.rowHeight, content.implicitWidth + 2 * content.x)
    implicitHeight: Math.max(Tokens.rowHeight, content.implicitHeight + 2 * content.y)
    Accessible.name: text

    Rectangle {
        anchors.fill: parent
        radius: control.radius
        color: control.primary ? control.fill : control.down ? Tokens.colors.pressed : "transparent"
        opacity: control.primary && control.down ? 0.8 : 1

        FocusRing { shown: control.visualFocus }
    }
    ButtonContent {
        id: content

        x: Tokens.wide
        y: Tokens.unit
        width: control.width - 2 * x
        height: control.height - 2 * y
        picture: control.picture
        text: control.text
        ink: control.ink
        label.font.pixelSize: control.textSize
        label.font.weight: control.primary ? Font.Medium : Font.Normal
    }
}
