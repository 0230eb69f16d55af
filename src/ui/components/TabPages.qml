import QtQuick
import Kesto

/*! Screens of which one is shown; those that were looked at stay as they are. */
FocusScope {
    id: pages

    required property var screens
    required property int selected

    Repeater {
        model: pages.screens

        Loader {
            id: loader

            required property ViewController modelData
            required property int index
            readonly property bool chosen: index === pages.selected

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
