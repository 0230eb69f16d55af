import QtQuick
import Kesto

/*! A ring of dots that turns while the program works. */
Item {
    id: busy

    property bool running: true
    property color color: Tokens.colors.tint
    property int size: Tokens.huge

    implicitWidth: size
    implicitHeight: size
    visible: running
    Accessible.role: Accessible.Indicator
    Accessible.name: Texts.localized("Loading")

    Item {
        id: ring

        anchors.fill: parent

        Repeater {
            model: 8

            Rectangle {
                required property int index

                readonly property real angle: index * Math.PI / 4
                width: busy.size / 6
                height: width
                radius: width / 2
                x: busy.size / 2 + Math.sin(angle) * busy.size * 0.38 - width / 2
                y: busy.size / 2 - Math.cos(angle) * busy.size * 0.38 - height / 2
                color: busy.color
                opacity: 0.2 + index * 0.1
            }
        }
        RotationAnimation on rotation {
            running: busy.running && busy.visible && Appearance.motion
            from: 0
            to: 360
            duration: Tokens.turn
            loops: Animation.Infinite
        }
    }
}
