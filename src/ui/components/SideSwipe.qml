import QtQuick
import Kesto

/*! A swipe to the side over the parent. */
DragHandler {
    id: swipe

    property real way: 0

    /*! −1: to the right, as to what was before; 1: to the left. */
    signal swiped(int by)

    target: null
    yAxis.enabled: false
    onTranslationChanged: if (active) way = activeTranslation.x
    onActiveChanged: {
        if (active) {
            way = 0;
            return;
        }
        if (Math.abs(way) > Tokens.rowHeight)
            swiped(way > 0 ? -1 : 1);
    }
}
