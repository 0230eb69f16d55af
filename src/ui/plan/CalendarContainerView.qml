import QtQuick
import Kesto

/*! A tablet's calendar: the month beside the screen of the selected day. */
FocusScope {
    id: view

    required property CalendarContainerViewController controller
    readonly property bool split: controller.day !== null

    ControllerView {
        width: view.split ? Math.round(view.width * 0.52) : view.width
        height: view.height
        focus: true
        controller: view.controller.calendar
    }
    Loader {
        x: Math.round(view.width * 0.52)
        width: view.width - x
        height: view.height
        active: view.split
        sourceComponent: ControllerView {
            controller: view.controller.day
        }
    }
    Rectangle {
        visible: view.split
        x: Math.round(view.width * 0.52)
        width: Tokens.hairline
        height: view.height
        color: Tokens.colors.separator
    }
}
