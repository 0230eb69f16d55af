import QtQuick
import Kesto

/*! The dishes of a category as tiles, and below them the phases. */
FocusScope {
    id: view

    required property DishesViewController controller
    readonly property int period: controller.currentPeriod

    onPeriodChanged: grid.goToTop()

    Background { anchors.fill: parent }
    TileGrid {
        id: grid

        objectName: "tiles"
        anchors.top: parent.top
        anchors.bottom: scopes.top
        width: parent.width
        clip: true
        focus: true
        model: view.controller.tiles
        Accessible.name: view.controller.title
        delegate: DishCollectionViewCell {
            controller: view.controller
            tiles: grid
        }
    }
    EmptyState {
        anchors.centerIn: grid
        width: Math.min(parent.width - 2 * Tokens.huge, 320)
        visible: view.controller.tiles.count === 0
        picture: view.controller.categoryIndex + "_recipes_icon"
        title: view.controller.emptyText
    }
    ScopeBar {
        id: scopes

        anchors.bottom: parent.bottom
        width: parent.width
        titles: view.controller.scopeTitles
        current: view.controller.currentPeriod
        name: Texts.localized("Phase")
        onChosen: index => view.controller.currentPeriod = index
    }
}
