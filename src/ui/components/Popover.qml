import QtQuick
import Kesto

/*! A card beside the thing \a anchor, with a beak that points at it; in the middle when there is no such thing. A touch outside closes it. */
FocusScope {
    id: popover

    property Item anchor: null
    property size sizeHint: Qt.size(0, 0)
    property real naturalHeight: Tokens.popoverHeight
    readonly property real cardWidth: Math.min(sizeHint.width > 0 ? sizeHint.width : Tokens.popoverWidth, width - 2 * Tokens.unit)
    readonly property real cardHeight: Math.min(sizeHint.height > 0 ? sizeHint.height : naturalHeight, height - 2 * Tokens.huge)
    readonly property rect target: {
        // Where the anchor is depends on these.
        popover.width; popover.height;
        return anchor ? anchor.mapToItem(popover, Qt.rect(0, 0, anchor.width, anchor.height)) : Qt.rect(width / 2, height / 2, 0, 0);
    }
    readonly property bool below: !anchor || target.y + target.height + Tokens.unit + cardHeight <= height - Tokens.unit
    readonly property bool above: !below && target.y - Tokens.unit - cardHeight >= Tokens.unit
    default property alias content: inner.data

    signal dismissed

    anchors.fill: parent

    Rectangle {
        anchors.fill: parent
        color: Tokens.colors.veil
        opacity: 0.6
    }
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onClicked: popover.dismissed()
        onWheel: {}
    }
    Rectangle {
        visible: popover.anchor && (popover.below || popover.above)
        width: Tokens.margin
        height: width
        rotation: 45
        color: Tokens.colors.surfaceRaised
        x: Math.max(card.x + Tokens.radius, Math.min(card.x + card.width - Tokens.radius - width, popover.target.x + popover.target.width / 2 - width / 2))
        y: popover.below ? card.y - height / 2 + 2 : card.y + card.height - height / 2 - 2
    }
    Rectangle {
        id: card

        width: popover.cardWidth
        height: popover.cardHeight
        x: popover.anchor ? Math.max(Tokens.unit, Math.min(popover.width - width - Tokens.unit, popover.target.x + popover.target.width / 2 - width / 2))
            : (popover.width - width) / 2
        y: !popover.anchor ? (popover.height - height) / 2
            : popover.below ? popover.target.y + popover.target.height + Tokens.unit
            : popover.above ? popover.target.y - Tokens.unit - height
            : (popover.height - height) / 2
        radius: Tokens.radius
        color: Tokens.colors.surfaceRaised

        MouseArea {
            anchors.fill: parent
            onWheel: {}
        }
        FocusScope {
            id: inner

            anchors.fill: parent
            anchors.margins: Tokens.half // the corners of what is inside are square
            focus: true
            clip: true
        }
    }
}
