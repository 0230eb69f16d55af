import QtQuick
import Kesto

/*!
    Tiles of the journal's buttons in rows. One of them takes part in the Tab order; the arrows, Home and End lead to the
    others.
*/
FocusScope {
    id: field

    required property var buttons
    property bool named: false
    property int nameLines: 2
    property color fill: Tokens.colors.surface
    property int minimumTile: Tokens.tileWidth
    /*! As many of these as can stand in a row: all of them, half of them …; 0: whatever there is room for. */
    property int inRow: 0
    readonly property int columns: inRow > 0 ? fitting(inRow)
        : Math.max(1, Math.floor((width + grid.spacing) / (minimumTile + grid.spacing)))
    property int current: 0
    property string name

    signal touched(int tag)

    function fitting(count: int): int {
        while (count > 1 && width < count * (Tokens.smallestTile + grid.spacing) - grid.spacing)
            count = Math.floor(count / 2);
        return count;
    }
    function go(to: int, event: var): void {
        event.accepted = to >= 0 && to < repeater.count;
        if (event.accepted)
            repeater.itemAt(to).forceActiveFocus(Qt.TabFocusReason);
    }

    implicitHeight: grid.height
    Accessible.role: Accessible.Grouping
    Accessible.name: name
    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Left: go(current - 1, event); break;
        case Qt.Key_Right: go(current + 1, event); break;
        case Qt.Key_Up: go(current - columns, event); break;
        case Qt.Key_Down: go(current + columns, event); break;
        case Qt.Key_Home: go(0, event); break;
        case Qt.Key_End: go(repeater.count - 1, event); break;
        default: event.accepted = false;
        }
    }

    Grid {
        id: grid

        width: field.width
        columns: field.columns
        spacing: Tokens.unit

        Repeater {
            id: repeater

            model: field.buttons

            JornalTile {
                required property JornalButton modelData
                required property int index

                width: Math.floor((grid.width - (field.columns - 1) * grid.spacing) / field.columns)
                button: modelData
                named: field.named
                nameLines: field.nameLines
                fill: field.fill
                focus: index === field.current
                focusPolicy: index === field.current ? Qt.StrongFocus : Qt.ClickFocus
                onActiveFocusChanged: if (activeFocus) field.current = index
                onClicked: field.touched(modelData.tag)
            }
        }
    }
}
