import QtQuick
import Kesto

/*! The month, the selected day, and the footer; side by side where there is room. */
FocusScope {
    id: view

    required property CalendarViewController controller
    readonly property bool wide: width > 700 && !controller.hasDayScreen
    readonly property real inset: wide ? Tokens.wide : Math.max(Tokens.margin, (width - Tokens.readableWidth) / 2)

    /*! The month gets the keys; the keyboard on the screen goes with the field's focus. */
    function takeKeys(): void {
        month.forceActiveFocus(Qt.OtherFocusReason);
    }

    Background { anchors.fill: parent }
    Flickable {
        id: page

        anchors.fill: parent
        contentHeight: content.height + 2 * Tokens.gap
        flickableDirection: Flickable.VerticalFlick
        boundsBehavior: Flickable.StopAtBounds

        ScrollBar { view: page }
        Grid {
            id: content

            readonly property real columnWidth: view.wide ? (view.width - 3 * Tokens.wide) / 2 : view.width - 2 * view.inset

            x: view.inset
            y: Tokens.gap
            columns: view.wide ? 2 : 1
            columnSpacing: Tokens.wide
            rowSpacing: Tokens.gap

            MonthGrid {
                id: month

                width: content.columnWidth
                cellHeight: Math.max(Math.round(Tokens.textBody * 2.9), view.wide ? 64 : view.controller.hasDayScreen ? (view.height < 900 ? 52 : 64) : 46)
                focus: true
                month: view.controller.month
                onNextRequested: view.controller.nextMonth()
                onPreviousRequested: view.controller.previousMonth()
                onTodayRequested: view.controller.showToday()
                onTouched: index => view.controller.touchCell(index)
            }
            Column {
                width: content.columnWidth
                spacing: Tokens.gap

                DaySummary {
                    width: parent.width
                    controller: view.controller
                }
                CalFooter {
                    width: parent.width
                    footer: view.controller.footer
                    onFinished: view.takeKeys()
                }
            }
        }
    }
    Connections {
        target: view.controller
        function onEditingShouldEnd() {
            view.takeKeys();
        }
    }
    // A field that the keyboard would cover comes into sight.
    Connections {
        target: view.Window.window
        function onActiveFocusItemChanged() {
            const item = view.Window.activeFocusItem;
            if (!view.activeFocus || !(item as TextField))
                return; // another screen's, a popover's, a dialog's
            const top = item.mapToItem(page.contentItem, 0, 0).y;
            if (top < page.contentY || top + item.height > page.contentY + page.height)
                page.contentY = Math.max(0, Math.min(page.contentHeight - page.height, top - page.height / 3));
        }
    }
}
