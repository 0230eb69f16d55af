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
            titleColor: summary.controller.dayDisabled ? Tokens.colors.textQuiet : summary.controller.periodColor
            titleWeight: Font.Bold // the phase's colour is a light one
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
            Keys.onEnterPressed: activated()
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
                selectable: !summary.controller.hasDayScreen
                onActivated: summary.controller.openDaySettings()
            }
        }
    }
}
