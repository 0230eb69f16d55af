import QtQuick
import QtQuick.Templates as T
import Kesto

T.AbstractButton {
    id: control

    property string picture
    property bool chosen: false
    readonly property color ink: chosen ? Tokens.colors.tabTitleChosen : Tokens.colors.tabTitle

    implicitHeight: contentItem.implicitHeight + 2 * Tokens.half
    topPadding: Tokens.half
    bottomPadding: Tokens.half
    focusPolicy: Qt.StrongFocus
    opacity: down ? 0.6 : 1
    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.selected: chosen
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    contentItem: Column {
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
    background: Item {
        FocusRing {
            anchors.margins: 2
            shown: control.visualFocus
        }
    }
}
