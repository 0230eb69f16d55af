import QtQuick
import Kesto

/*! What scrolls of a tab, and follows the keys. */
Flickable {
    id: page

    property real inset: Math.max(Tokens.margin, (width - Tokens.readableWidth) / 2)
    property alias spacing: column.spacing
    default property alias content: column.data

    contentHeight: column.height + 2 * Tokens.gap
    flickableDirection: Flickable.VerticalFlick
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    /*! What the keys lead to comes into sight. */
    function reveal(item: Item): void {
        for (let each = item; each && each !== contentItem; each = each.parent) {
            if (each.parent !== contentItem)
                continue;
            const top = item.mapToItem(contentItem, 0, 0).y;
            const wanted = top < contentY ? top - Tokens.gap : Math.max(contentY, top + item.height + Tokens.gap - height);
            contentY = Math.max(0, Math.min(contentHeight - height, wanted));
        }
    }

    ScrollBar { view: page }
    Column {
        id: column

        y: Tokens.gap
        width: page.width
        spacing: Tokens.gap
    }
    Connections {
        target: page.Window.window
        function onActiveFocusItemChanged(): void {
            if (Appearance.keysInUse && page.Window.activeFocusItem)
                page.reveal(page.Window.activeFocusItem);
        }
    }
}
