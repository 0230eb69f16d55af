import QtQuick
import QtQuick.Templates as T
import Kesto

/*! A thin bar that shows while something moves. */
T.ScrollBar {
    id: control

    implicitWidth: orientation === Qt.Vertical ? Tokens.unit : 100
    implicitHeight: orientation === Qt.Vertical ? 100 : Tokens.unit
    padding: 2
    minimumSize: 0.08
    visible: policy !== T.ScrollBar.AlwaysOff && size < 1
    Accessible.ignored: true

    contentItem: Rectangle {
        radius: Math.min(width, height) / 2
        color: Tokens.colors.textQuiet
        opacity: control.active ? 0.6 : 0

        Behavior on opacity { NumberAnimation { duration: Tokens.normal } }
    }
}
