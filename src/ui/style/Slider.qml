import QtQuick
import QtQuick.Templates as T
import Kesto

/*! A value between two ends. */
T.Slider {
    id: control

    property string name

    implicitWidth: Tokens.sliderWidth
    implicitHeight: Tokens.rowHeight
    focusPolicy: Qt.StrongFocus
    Accessible.name: name

    background: Rectangle {
        y: (control.height - height) / 2
        width: control.availableWidth
        height: Tokens.half
        radius: height / 2
        color: Tokens.colors.trackOff

        Rectangle {
            width: control.visualPosition * parent.width
            height: parent.height
            radius: parent.radius
            color: Tokens.colors.accent
        }
    }
    handle: Rectangle {
        x: control.visualPosition * (control.availableWidth - width)
        y: (control.height - height) / 2
        implicitWidth: Tokens.knobSize
        implicitHeight: Tokens.knobSize
        radius: width / 2
        color: Tokens.colors.knob
        border.width: Tokens.hairline
        border.color: Tokens.colors.separator

        FocusRing {
            anchors.margins: -4
            radius: height / 2
            shown: control.visualFocus
        }
    }
}
