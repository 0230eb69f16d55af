import QtQuick
import Kesto

/*!
    A month under its name. The keyboard: the arrows walk over the days, Enter and Space select one, Page Up and Page Down
    turn the months; a finger turns them by a swipe.
*/
FocusScope {
    id: grid

    required property CalendarMonth month
    property real cellHeight: 46
    /*! Where the arrows are; goes with the selected day until they are used. */
    property int cursor: Math.max(0, month.selectedIndex)
    property bool byKeyboard: false

    signal nextRequested
    signal previousRequested
    signal todayRequested
    signal touched(int index)

    function walk(by: int): void {
        cursor = month.walk(cursor, by);
    }

    implicitHeight: column.height + Tokens.unit

    Rectangle {
        anchors.fill: parent
        radius: Tokens.radius
        color: Tokens.colors.surface
    }
    TextMetrics {
        id: titleMetrics

        font.family: Tokens.family
        font.pixelSize: Tokens.textTitle
        text: grid.month.title
    }
    Column {
        id: column

        x: Tokens.half
        width: parent.width - 2 * x

        Item {
            width: parent.width
            height: Math.max(Tokens.rowHeight, title.height)

            IconButton {
                anchors.verticalCenter: parent.verticalCenter
                picture: "chevron_left"
                name: grid.month.previousTitle
                onClicked: grid.previousRequested()
            }
            Button {
                id: title

                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(implicitWidth, parent.width - 2 * Tokens.rowHeight)
                text: grid.month.title
                // In one line, unless that takes a text too small for a title.
                textSize: Math.max(Tokens.textSmall, Math.floor(Tokens.textTitle * Math.min(1, (parent.width - 2 * (Tokens.rowHeight + Tokens.wide)) / (titleMetrics.advanceWidth + 2))))
                onClicked: grid.todayRequested()
            }
            IconButton {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                picture: "chevron_right"
                name: grid.month.nextTitle
                onClicked: grid.nextRequested()
            }
        }
        Row {
            width: parent.width
            height: Math.round(Tokens.textCaption * 1.8)

            Repeater {
                model: grid.month.weekdayTitles

                Label {
                    required property string modelData

                    width: column.width / 7
                    text: modelData
                    wrapMode: Text.NoWrap
                    horizontalAlignment: Text.AlignHCenter
                    color: Tokens.colors.textQuiet
                    font.pixelSize: Tokens.textCaption
                }
            }
        }
        Grid {
            id: cells

            width: parent.width
            columns: 7
            focus: true
            activeFocusOnTab: true
            Accessible.role: Accessible.Table
            Accessible.name: grid.month.title
            Keys.onPressed: event => {
                event.accepted = true;
                grid.byKeyboard = true;
                switch (event.key) {
                case Qt.Key_Left: grid.walk(-1); break;
                case Qt.Key_Right: grid.walk(1); break;
                case Qt.Key_Up: grid.walk(-7); break;
                case Qt.Key_Down: grid.walk(7); break;
                case Qt.Key_PageUp: grid.previousRequested(); break;
                case Qt.Key_PageDown: grid.nextRequested(); break;
                case Qt.Key_Home:
                    grid.todayRequested();
                    grid.cursor = grid.month.indexOfToday();
                    break;
                case Qt.Key_Return:
                case Qt.Key_Enter:
                case Qt.Key_Space: grid.touched(grid.cursor); break;
                default: event.accepted = false;
                }
            }

            Repeater {
                id: days

                model: grid.month

                MonthDay {
                    width: cells.width / 7
                    height: grid.cellHeight
                    current: grid.byKeyboard && cells.activeFocus && index === grid.cursor
                    onTouched: {
                        grid.byKeyboard = false;
                        grid.cursor = index;
                        cells.forceActiveFocus(Qt.MouseFocusReason);
                        grid.touched(index);
                    }
                }
            }
        }
    }
    MonthMarks {
        x: column.x
        y: cells.y
        width: cells.width
        height: cells.height
        month: grid.month
        cellHeight: grid.cellHeight
        font.family: Tokens.family
        font.pixelSize: Tokens.textCaption - 1
        color: Tokens.colors.text
        labelMargin: Tokens.phaseHeight + Tokens.half
        smileSize: Tokens.tinyIcon - 2
        smileMargin: Tokens.smileInset
        disabledOpacity: Tokens.disabledOpacity
        otherMonthOpacity: Tokens.otherMonthOpacity
    }
    DragHandler {
        target: null
        yAxis.enabled: false
        onActiveChanged: {
            if (active)
                return;
            const by = activeTranslation.x;
            if (Math.abs(by) < grid.width / 6)
                return;
            if (by < 0)
                grid.nextRequested();
            else
                grid.previousRequested();
        }
    }
    Connections {
        target: grid.month
        function onMonthChanged() {
            grid.cursor = Math.max(0, Math.min(grid.cursor, days.count - 1)); // another month may have fewer weeks
        }
        function onSelectedIndexChanged() {
            if (!grid.byKeyboard && grid.month.selectedIndex >= 0)
                grid.cursor = grid.month.selectedIndex;
        }
    }
}
