import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Kesto

/*! A push button: plain text, filled with the accent (primary), or red (destructive); with a picture or without. */
T.Button {
    id: control

    property bool primary: false
    property bool destructive: false
    property string picture
    property int textSize: Tokens.textBody
    readonly property color ink: !enabled ? Tokens.colors.textDisabled
        : primary ? Tokens.colors.accentInk
        : destructive ? Tokens.colors.destructive : Tokens.colors.accentText

    implicitWidth: Math.max(Tokens.rowHeight, contentItem.implicitWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(Tokens.rowHeight, contentItem.implicitHeight + topPadding + bottomPadding)
    leftPadding: Tokens.margin
    rightPadding: Tokens.margin
    topPadding: Tokens.unit
    bottomPadding: Tokens.unit
    focusPolicy: Qt.StrongFocus

    Accessible.name: text
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    contentItem: RowLayout {
        spacing: Tokens.unit

        Item { Layout.fillWidth: true }
        Icon {
            visible: control.picture.length > 0
            name: control.picture
            color: control.ink
        }
        Label {
            visible: control.text.length > 0
            Layout.fillWidth: true
            Layout.maximumWidth: Math.ceil(implicitWidth)
            text: control.text
            color: control.ink
            font.pixelSize: control.textSize
            font.weight: control.primary ? Font.Medium : Font.Normal
            horizontalAlignment: Text.AlignHCenter
        }
        Item { Layout.fillWidth: true }
    }

    background: Rectangle {
        radius: Tokens.smallRadius
        color: control.primary ? (control.enabled ? Tokens.colors.accent : Tokens.colors.trackOff)
            : control.down ? Tokens.colors.pressed : "transparent"
        opacity: control.primary && control.down ? 0.8 : 1

        FocusRing { shown: control.visualFocus }
    }
}
