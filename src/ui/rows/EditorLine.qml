import QtQuick
import Kesto

/*! A row with a field of several lines. */
EditorRow {
    required property TableLine line

    title: line.title
    text: line.text
    placeholder: line.placeholder
    available: line.available
    current: line.current
    first: line.isFirst
    last: line.isLast
    onBegan: line.table.fieldEntered(line)
    onCommitted: text => line.controller.endEditingText(line.section, line.row, text)
    onFinished: line.table.fieldLeft()
}
