import QtQuick
import QtQuick.Templates as T
import Kesto

/*! On or off. */
T.Switch {
    id: control

    property string name

    implicitWidth: indicator.implicitWidth
    implicitHeight: Math.max(indicator.implicitHeight, Tokens.huge)
    focusPolicy: Qt.StrongFocus
    Accessible.name: name

    indicator: Rectangle {
        implicitWidth: Tokens.switchWidth
        implicitHeight: Tokens.switchHeight
        y: (control.height - height) / 2
        radius: height / 2
        color: control.checked ? Tokens.colors.accent : Tokens.colors.trackOff
        opacity: control.enabled ? 1 : 0.5

        Rectangle {
            x: 2 + control.visualPosition * (parent.width - width - 4)
            y: 2
            width: parent.height - 4
            height: width
            radius: width / 2
            color: Tokens.colors.knob

            Behavior on x {
                enabled: !control.pressed
                NumberAnimation { duration: Tokens.quick }
            }
        }
        FocusRing {
            anchors.margins: -4
            radius: height / 2
            shown: control.visualFocus
        }
    }
}
