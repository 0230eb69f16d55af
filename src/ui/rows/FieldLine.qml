import QtQuick
import Kesto

/*! A row with a field. */
FieldRow {
    required property TableLine line
    readonly property string typing: field.text

    picture: line.shown.image
    title: line.shown.title
    subtitle: line.shown.subtitle
    titleColor: line.ink
    struckThrough: line.shown.struckThrough
    available: line.shown.enabled
    current: line.current && !field.activeFocus
    first: line.shown.isFirst
    last: line.shown.isLast
    text: line.shown.text
    subject: line.shown.id
    placeholder: line.shown.placeholder
    unit: line.shown.unit
    keyboard: line.shown.keyboard
    onBegan: line.table.fieldEntered(line)
    onTypingChanged: if (field.activeFocus) line.controller.editingTextChanged(line.shown.section, line.shown.id, typing)
    onCommitted: (subject, text) => line.controller.endEditingText(line.shown.section, subject, text)
    onFinished: line.table.fieldLeft()
    Keys.onTabPressed: event => line.table.tabbed(line, 1, event)
    Keys.onBacktabPressed: event => line.table.tabbed(line, -1, event)
}
