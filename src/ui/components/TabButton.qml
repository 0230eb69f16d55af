import QtQuick
import Kesto

Pressable {
    id: control

    property string text
    property string picture
    property bool chosen: false
    readonly property color ink: chosen ? Tokens.colors.tabTitleChosen : Tokens.colors.tabTitle

    implicitHeight: content.implicitHeight + 2 * content.y
    opacity: down ? 0.6 : 1
    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.selected: chosen

    FocusRing {
        anchors.margins: 2
        shown: control.visualFocus
    }
    Column {
        id: content

        y: Tokens.half
        width: control.width
        spacing: 2

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: control.picture
            color: control.ink
        }
        Label {
            width: parent.width
            text: control.text
            color: control.ink
            font.pixelSize: Math.min(Tokens.textCaption, Tokens.textOfTabs)
            font.weight: control.chosen ? Font.Medium : Font.Normal
            lineHeight: 0.9
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
