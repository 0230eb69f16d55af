import QtQuick
import Kesto

/*! A day of the month: its number, and the phase as a line below. What it is marked with, MonthMarks draws. */
Item {
    id: day

    required property int index
    required property int number
    required property color color
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
        opacity: !day.isEnabled ? Tokens.disabledOpacity : day.isOtherMonth ? Tokens.otherMonthOpacity : 1

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
        Rectangle {
            x: Tokens.half
            y: parent.height - height - Tokens.half
            width: parent.width - 2 * x
            height: Tokens.phaseHeight
            radius: height / 2
            color: day.color

            // Today's colour is near to that of a phase.
            Rectangle {
                z: -1
                anchors.fill: parent
                anchors.margins: -1
                visible: day.isToday && day.color.a > 0
                radius: parent.radius + 1
                color: Tokens.colors.surface
            }
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
