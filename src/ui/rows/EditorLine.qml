import QtQuick
import Kesto

/*! A row with a field of several lines. */
EditorRow {
    required property TableLine line

    title: line.shown.title
    text: line.shown.text
    subject: line.shown.id
    placeholder: line.shown.placeholder
    available: line.shown.enabled
    current: line.current
    first: line.shown.isFirst
    last: line.shown.isLast
    onBegan: line.table.fieldEntered(line)
    onCommitted: (subject, text) => line.controller.endEditingText(line.shown.section, subject, text)
    onFinished: line.table.fieldLeft()
}
