import QtQuick
import QtQuick.Templates as T
import Kesto

T.AbstractButton {
    id: control

    property bool chosen: false

    implicitHeight: Tokens.rowHeight
    leftPadding: Tokens.unit
    rightPadding: Tokens.unit
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.selected: chosen
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    contentItem: Label {
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
    background: Rectangle {
        anchors.fill: parent
        anchors.margins: 3
        radius: Tokens.smallRadius
        color: control.chosen ? Tokens.colors.surface : "transparent"
        opacity: control.down ? 0.7 : 1

        FocusRing { shown: control.visualFocus }
    }
}
