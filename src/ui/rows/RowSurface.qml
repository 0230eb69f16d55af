import QtQuick
import Kesto

/*! The white of a row: the first and the last row of a section are round at their ends. */
Item {
    id: surface

    property bool first: true
    property bool last: true
    property color color: Tokens.colors.surface
    property bool line: !last
    property real inset: Tokens.margin

    Rectangle {
        anchors.fill: parent
        radius: surface.first || surface.last ? Tokens.radius : 0
        color: surface.color
    }
    Rectangle {
        width: parent.width
        height: Math.min(Tokens.radius, parent.height / 2)
        visible: !surface.first
        color: surface.color
    }
    Rectangle {
        y: parent.height - height
        width: parent.width
        height: Math.min(Tokens.radius, parent.height / 2)
        visible: !surface.last
        color: surface.color
    }
    Rectangle {
        visible: surface.line
        x: surface.inset
        y: parent.height - height
        width: parent.width - x
        height: Tokens.hairline
        color: Tokens.colors.separator
    }
}
