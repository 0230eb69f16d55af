import QtQuick
import Kesto

/*! The favourite dishes, with their first letters at the right. */
FocusScope {
    id: view

    required property FavoritesViewController controller

    Background { anchors.fill: parent }
    RowTable {
        anchors.fill: parent
        focus: true
        controller: view.controller
        showsIndex: true
        picture: "favorite_dish"
        emptyText: view.controller.emptyText
    }
}
