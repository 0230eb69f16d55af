import QtQuick
import Kesto

/*! The shopping list; while it is empty, what it is for. */
FocusScope {
    id: view

    required property CartViewController controller

    Background { anchors.fill: parent }
    RowTable {
        id: table

        anchors.fill: parent
        focus: true
        controller: view.controller
        topMargin: view.controller.headerHeight >= 0 ? view.controller.headerHeight : Tokens.unit
    }
    EmptyState {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Tokens.huge, 320)
        visible: view.controller.emptyTitle.length > 0
        picture: "8.png"
        title: view.controller.emptyTitle
        message: view.controller.emptyMessage
    }
}
