import QtQuick
import Kesto

/*! The selected day: phase and date, the weight, the planned dishes. A touch opens the day. */
FocusScope {
    id: summary

    required property CalendarViewController controller

    implicitHeight: rows.height

    Column {
        id: rows

        width: parent.width

        ListRow {
            width: parent.width
            title: summary.controller.periodName
            titleColor: summary.controller.dayDisabled ? Tokens.colors.textQuiet : Qt.darker(summary.controller.periodColor, Appearance.dark ? 1 : 1.25)
            subtitle: summary.controller.dateText
            detail: summary.controller.dayDisabled ? "" : summary.controller.currentWeight
            available: !summary.controller.dayDisabled
            selectable: !summary.controller.hasDayScreen
            accessory: summary.controller.hasDayScreen || summary.controller.dayDisabled ? TableRow.None : TableRow.Disclosure
            last: dishes.count === 0
            activeFocusOnTab: selectable
            current: activeFocus
            onActivated: summary.controller.openDaySettings()
            Keys.onReturnPressed: activated()
            Keys.onSpacePressed: activated()
        }
        Repeater {
            id: dishes

            model: summary.controller.dayDisabled ? [] : summary.controller.dishes

            ListRow {
                required property string modelData
                required property int index

                width: rows.width
                title: modelData
                first: false
                last: index + 1 === dishes.count
                selectable: false
            }
        }
    }
}
