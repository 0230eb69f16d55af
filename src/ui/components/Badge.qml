import QtQuick
import Kesto

/*! A short word in a frame of its colour: a phase, a mark. */
Rectangle {
    id: badge

    property string text
    property color tone: Tokens.colors.textQuiet
    property bool filled: false

    implicitWidth: label.implicitWidth + 2 * Tokens.unit
    implicitHeight: label.implicitHeight + Tokens.half
    radius: Math.min(height / 2, Tokens.smallRadius)
    color: filled ? tone : "transparent"
    border.width: Tokens.hairline
    border.color: tone
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Label {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, badge.width - Tokens.unit)
        text: badge.text
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Tokens.gap
        elide: Text.ElideRight
        wrapMode: Text.NoWrap
        font.pixelSize: Tokens.textCaption
        color: badge.filled ? Tokens.colors.accentInk : Tokens.colors.text
    }
}
