import QtQuick
import Kesto

/*! Any table screen. */
FocusScope {
    id: view

    required property TableViewController controller

    Background { anchors.fill: parent }
    RowTable {
        anchors.fill: parent
        focus: true
        controller: view.controller
    }
}
