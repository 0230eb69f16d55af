import QtQuick
import Kesto

/*! A bar that fills up to a share, at most to its end. */
Rectangle {
    id: bar

    /*! May be above 1. */
    required property real share
    property color fill: Tokens.colors.accent
    /*! For those who do not see it. */
    property string name

    implicitHeight: Tokens.barThickness
    radius: height / 2
    color: Tokens.colors.trackOff
    Accessible.role: Accessible.ProgressBar
    Accessible.name: name

    Rectangle {
        width: Math.min(1, bar.share) * bar.width
        height: bar.height
        visible: width > 0
        radius: bar.radius
        color: bar.fill

        Behavior on width { NumberAnimation { duration: Tokens.slow; easing.type: Easing.OutCubic } }
    }
}
