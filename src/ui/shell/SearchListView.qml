import QtQuick
import Kesto

/*! A list that can be searched and narrowed to a phase. Ctrl+F leads to the search. */
FocusScope {
    id: view

    required property SearchBarDietTableViewController controller

    Background { anchors.fill: parent }
    Rectangle {
        id: bar

        width: parent.width
        height: search.visible ? search.height + 2 * Tokens.unit : 0
        color: Tokens.colors.bar

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: Tokens.hairline
            visible: search.visible
            color: Tokens.colors.barLine
        }
    }
    SearchField {
        id: search

        x: table.inset
        y: visible ? Tokens.unit : 0
        width: parent.width - 2 * x
        height: visible ? implicitHeight : 0
        visible: view.controller.hasSearchBar
        text: view.controller.searchText
        onEdited: text => view.controller.searchText = text
        onFinished: table.focusList()
    }
    RowTable {
        id: table

        anchors.top: bar.bottom
        anchors.bottom: scopes.top
        width: parent.width
        clip: true
        focus: true
        controller: view.controller
        picture: view.controller.searchActive ? "search" : ""
    }
    ScopeBar {
        id: scopes

        anchors.bottom: parent.bottom
        width: parent.width
        height: visible ? implicitHeight : 0
        visible: view.controller.periodsScopes
        titles: view.controller.scopeTitles
        current: view.controller.currentPeriod
        name: Texts.localized("Phase")
        onChosen: index => view.controller.currentPeriod = index
    }
    Shortcut {
        sequence: "Ctrl+F"
        enabled: view.enabled && view.controller.isVisible && view.controller.hasSearchBar
        onActivated: search.forceActiveFocus(Qt.ShortcutFocusReason)
    }
}
