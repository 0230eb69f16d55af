import QtQuick
import Kesto

/*! A screen that shows nothing yet but its title. */
FocusScope {
    id: view

    required property ViewController controller
    /*! Some of these screens have a picture. */
    readonly property var any: controller

    Background { anchors.fill: parent }
    EmptyState {
        anchors.centerIn: parent
        width: parent.width - 2 * Tokens.huge
        picture: view.any.image ?? ""
        title: view.controller.title
    }
}
