import QtQuick
import Kesto

/*! The tabs of a container, at the bottom. */
Rectangle {
    id: bar

    required property TabBarController controller

    implicitHeight: row.height
    color: Tokens.colors.bar
    Accessible.role: Accessible.PageTabList
    Accessible.name: controller.title

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

            model: bar.controller.viewControllers

            TabButton {
                required property ViewController modelData
                required property int index

                width: row.width / repeater.count
                text: modelData.tabBarTitle
                picture: modelData.tabBarImage
                chosen: index === bar.controller.selectedIndex
                onClicked: bar.controller.selectedIndex = index
                Keys.onLeftPressed: if (index > 0) passFocus(false)
                Keys.onRightPressed: if (index + 1 < repeater.count) passFocus(true)
            }
        }
    }
}
