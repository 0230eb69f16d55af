import QtQuick
import Kesto

/*! A day of the month: its number, the kind's short label, a smile for a journal, and the phase as a line below. */
Item {
    id: day

    required property int index
    required property int number
    required property color color
    required property string kind
    required property bool hasJornal
    required property bool isOtherMonth
    required property bool isToday
    required property bool isEnabled
    required property bool isSelected
    required property string accessibleName
    property bool current: false

    signal touched

    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.selectable: isEnabled
    Accessible.selected: isSelected
    Accessible.onPressAction: touched()

    Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        radius: Tokens.smallRadius
        color: day.isToday ? Tokens.colors.today
            : day.isSelected || touch.pressed ? Tokens.colors.selected : Tokens.colors.surface
        border.width: day.isToday && day.isSelected ? Tokens.focusWidth : 0
        border.color: Tokens.colors.text
    }
    Item {
        anchors.fill: parent
        opacity: !day.isEnabled ? 0.4 : day.isOtherMonth ? 0.55 : 1

        Label {
            id: number

            y: Math.max(2, (day.height - height) / 2 - Tokens.unit)
            width: parent.width
            text: day.number
            wrapMode: Text.NoWrap
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Tokens.gap
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Tokens.textBody
            font.bold: day.isToday
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: phase.top
            width: parent.width - 2
            text: day.kind
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Tokens.textCaption - 1
        }
        Icon {
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: 3
            visible: day.hasJornal
            name: "smile"
            size: Tokens.tinyIcon - 2
            color: Tokens.colors.text
        }
        Rectangle {
            id: phase

            x: Tokens.half
            y: parent.height - height - Tokens.half
            width: parent.width - 2 * x
            height: 4
            radius: 2
            color: day.color
        }
    }
    MouseArea {
        id: touch

        anchors.fill: parent
        enabled: day.isEnabled
        onClicked: day.touched()
    }
    FocusRing { shown: day.current }
}
