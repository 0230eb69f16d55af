import QtQuick
import Kesto

Pressable {
    id: control

    property string text
    property bool chosen: false

    implicitHeight: Tokens.rowHeight
    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.selected: chosen

    Rectangle {
        anchors.fill: parent
        anchors.margins: Tokens.scopeInset
        radius: Tokens.smallRadius
        color: control.chosen ? Tokens.colors.surface : "transparent"
        opacity: control.down ? 0.7 : 1

        FocusRing { shown: control.visualFocus }
    }
    Label {
        x: Tokens.unit
        width: control.width - 2 * x
        height: control.height
        text: control.text
        color: control.chosen ? Tokens.colors.accentText : Tokens.colors.barButton
        font.weight: control.chosen ? Font.Medium : Font.Normal
        font.pixelSize: Math.min(Tokens.textSmall, Tokens.textOfScopes)
        fontSizeMode: Text.Fit
        minimumPixelSize: 9
        wrapMode: Text.NoWrap
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
}
