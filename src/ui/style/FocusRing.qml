import QtQuick
import Kesto

/*! Shows where the keyboard is. */
Rectangle {
    property bool shown: false

    anchors.fill: parent
    visible: shown
    color: "transparent"
    radius: Tokens.smallRadius
    border.width: Tokens.focusWidth
    border.color: Tokens.colors.focus
    z: 10
}
