import QtQuick
import Kesto

/*! One of a few choices, side by side; a choice too wide for its place makes the words smaller, never shorter. */
Rectangle {
    id: scopes

    required property var titles
    required property int current
    property string name

    signal chosen(int index)

    implicitHeight: Math.max(Tokens.barHeight, row.height)
    color: Tokens.colors.bar
    Accessible.role: Accessible.PageTabList
    Accessible.name: name

    Row {
        id: row

        x: Tokens.unit
        width: parent.width - 2 * Tokens.unit
        anchors.verticalCenter: parent.verticalCenter

        Repeater {
            model: scopes.titles

            ScopeButton {
                required property string modelData
                required property int index

                width: row.width / scopes.titles.length
                text: modelData
                chosen: index === scopes.current
                onClicked: scopes.chosen(index)
                Keys.onLeftPressed: if (index > 0) passFocus(false)
                Keys.onRightPressed: if (index + 1 < scopes.titles.length) passFocus(true)
            }
        }
    }
}
