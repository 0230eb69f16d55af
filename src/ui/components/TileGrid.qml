import QtQuick
import Kesto

/*!
    A grid of tiles as wide as the place allows. The keyboard: arrows, Home, End, Page Up and Page Down go from tile to tile,
    Enter touches one, Space its check button where it has one.
*/
GridView {
    id: grid

    property int minimumTile: Math.round((width < Tokens.readableWidth ? 150 : 190) * Tokens.pictureScale)
    readonly property int columns: Math.max(1, Math.floor((width - 2 * Tokens.unit) / minimumTile))
    property bool byKeyboard: false
    /*! The current tile shows that the keys are its. */
    readonly property bool keyboardShown: byKeyboard && activeFocus
    readonly property int lineHeight: Math.ceil(metrics.lineSpacing)
    readonly property FontMetrics metrics: FontMetrics {
        font.family: Tokens.family
        font.pixelSize: Tokens.textSmall
    }

    leftMargin: Tokens.unit
    rightMargin: Tokens.unit
    topMargin: Tokens.unit
    bottomMargin: Tokens.wide
    cellWidth: Math.floor((width - 2 * Tokens.unit) / columns)
    // A picture, three lines of words and the marks
    cellHeight: Math.round(Math.min(cellWidth * 0.62, 160) + 3 * lineHeight + 6 * Tokens.unit + Tokens.half)
    activeFocusOnTab: true
    keyNavigationEnabled: true
    highlightFollowsCurrentItem: true
    highlightMoveDuration: 0
    boundsBehavior: Flickable.StopAtBounds
    reuseItems: true
    cacheBuffer: 400
    currentIndex: -1
    Accessible.role: Accessible.List

    function goToTop(): void {
        forceLayout();
        contentY = originY - topMargin;
    }
    /*! A tile was touched: the keys go on from it. */
    function touched(index: int): void {
        byKeyboard = false;
        currentIndex = index;
        forceActiveFocus(Qt.MouseFocusReason);
    }
    function choose(index: int): void {
        if (count > 0)
            currentIndex = Math.max(0, Math.min(count - 1, index));
    }
    /*! The keys go to the tile itself, so that its name is heard. */
    function focusTile(): void {
        if (!activeFocus)
            return;
        if (currentIndex < 0 && count > 0)
            currentIndex = Math.max(0, indexAt(cellWidth / 2, contentY + cellHeight / 2));
        if (currentItem && !currentItem.activeFocus)
            currentItem.forceActiveFocus(Qt.OtherFocusReason);
    }

    onActiveFocusChanged: focusTile()
    onCurrentItemChanged: focusTile()
    Component.onCompleted: focusTile()
    Keys.onPressed: event => {
        const tile = currentItem as Tile;
        const page = Math.max(1, Math.floor(height / cellHeight)) * columns;
        byKeyboard = true;
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Return:
        case Qt.Key_Enter: if (tile) tile.activated(); break;
        case Qt.Key_Space: if (tile && tile.checkable) tile.checkTouched(); else if (tile) tile.activated(); break;
        case Qt.Key_Home: choose(0); break;
        case Qt.Key_End: choose(count - 1); break;
        case Qt.Key_PageDown: choose(currentIndex + page); break;
        case Qt.Key_PageUp: choose(currentIndex - page); break;
        default: event.accepted = false;
        }
    }

    ScrollBar { view: grid }
}
