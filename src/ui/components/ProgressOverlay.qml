import QtQuick
import Kesto

/*! Says that something takes its time. */
Item {
    id: overlay

    required property ProgressIndicator progress
    readonly property string text: progress.text

    visible: progress.visible
    Accessible.role: Accessible.Indicator
    Accessible.name: text.length > 0 ? text : Texts.localized("Loading")

    Rectangle {
        anchors.fill: parent
        color: Tokens.colors.veil
    }
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onWheel: {}
    }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(Math.max(120, label.implicitWidth + 2 * Tokens.wide), parent.width - 2 * Tokens.wide)
        height: column.height + 2 * Tokens.wide
        radius: Tokens.radius
        color: Tokens.colors.surfaceRaised

        Column {
            id: column

            anchors.centerIn: parent
            width: parent.width - 2 * Tokens.wide
            spacing: Tokens.margin

            BusyIndicator {
                anchors.horizontalCenter: parent.horizontalCenter
                running: overlay.visible
            }
            Label {
                id: label

                width: parent.width
                visible: text.length > 0
                text: overlay.text
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
}
