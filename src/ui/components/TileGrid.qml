import QtQuick
import Kesto

/*! A grid of tiles as wide as the place allows, at least \a minimumTile. Arrows go from tile to tile; Enter and Space touch one. */
GridView {
    id: grid

    property int minimumTile: Math.round(150 * Tokens.pictureScale)
    /*! Room for the picture, three lines of words and the marks. */
    property real tileHeight: Math.round(Math.min(cellWidth * 0.6, 160) + Tokens.textSmall * 1.3 * 3 + 6 * Tokens.unit)
    readonly property int columns: Math.max(1, Math.floor((width - 2 * Tokens.unit) / minimumTile))
    property bool byKeyboard: false

    /*! A tile was touched by the keyboard. */
    signal activated(int index)

    leftMargin: Tokens.unit
    rightMargin: Tokens.unit
    topMargin: Tokens.unit
    bottomMargin: Tokens.wide
    cellWidth: Math.floor((width - 2 * Tokens.unit) / columns)
    cellHeight: tileHeight
    activeFocusOnTab: true
    keyNavigationEnabled: true
    highlightFollowsCurrentItem: true
    highlightMoveDuration: 0
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 400
    currentIndex: -1
    ScrollBar.vertical: ScrollBar {}
    Accessible.role: Accessible.List

    onActiveFocusChanged: if (activeFocus && currentIndex < 0 && count > 0) currentIndex = 0
    Keys.onPressed: event => {
        byKeyboard = true;
        if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space) {
            event.accepted = true;
            if (currentIndex >= 0)
                activated(currentIndex);
        } else {
            event.accepted = false;
        }
    }
}
