import QtQuick
import Kesto

/*! The screens of a tab container: those that were looked at stay as they are, only the selected one shows. */
FocusScope {
    id: view

    required property TabBarController controller

    Item {
        anchors.top: parent.top
        anchors.bottom: bar.top
        width: parent.width

        Repeater {
            model: view.controller.viewControllers

            Loader {
                id: loader

                required property ViewController modelData
                required property int index
                readonly property bool chosen: index === view.controller.selectedIndex

                anchors.fill: parent
                visible: chosen
                focus: chosen
                active: chosen || item !== null
                sourceComponent: ControllerView {
                    focus: true
                    controller: loader.modelData
                }
            }
        }
    }
    TabBar {
        id: bar

        anchors.bottom: parent.bottom
        width: parent.width
        controller: view.controller
    }
}
