import QtQuick
import Kesto

/*! The white of a row: the first and the last row of a section are round at their ends. */
Rectangle {
    id: surface

    property bool first: true
    property bool last: true
    property bool line: !last
    property real inset: Tokens.margin

    radius: first || last ? Tokens.radius : 0
    color: Tokens.colors.surface

    // Makes the corners square again where another row goes on.
    Rectangle {
        y: surface.first ? parent.height - height : 0
        width: parent.width
        height: Math.min(Tokens.radius, parent.height / 2)
        visible: surface.first !== surface.last
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
