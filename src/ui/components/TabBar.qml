import QtQuick
import Kesto

/*! The tabs of some screens, at the bottom. */
Rectangle {
    id: bar

    required property string title
    required property var screens
    required property int selected

    signal chosen(int index)

    implicitHeight: row.height
    color: Tokens.colors.bar
    Accessible.role: Accessible.PageTabList
    Accessible.name: title

    Rectangle {
        width: parent.width
        height: Tokens.hairline
        color: Tokens.colors.barLine
    }
    Row {
        id: row

        width: parent.width

        Repeater {
            id: repeater

            model: bar.screens

            TabButton {
                required property ViewController modelData
                required property int index

                width: row.width / repeater.count
                text: modelData.tabBarTitle
                picture: modelData.tabBarImage
                chosen: index === bar.selected
                onClicked: bar.chosen(index)
                Keys.onLeftPressed: if (index > 0) passFocus(false)
                Keys.onRightPressed: if (index + 1 < repeater.count) passFocus(true)
            }
        }
    }
}
