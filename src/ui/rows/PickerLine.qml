import QtQuick
import Kesto

/*! A row with wheels. */
PickerRow {
    required property TableLine line

    picker: line.shown.picker as Picker
    name: line.shown.title
    first: line.shown.isFirst
    last: line.shown.isLast
    Keys.onEscapePressed: line.table.fieldLeft()
}
