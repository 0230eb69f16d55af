import QtQuick
import Kesto

/*! A row with wheels. */
PickerRow {
    required property TableLine line

    picker: line.picker as Picker
    name: line.title
    first: line.isFirst
    last: line.isLast
    Keys.onEscapePressed: line.table.fieldLeft()
}
