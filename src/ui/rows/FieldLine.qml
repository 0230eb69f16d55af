import QtQuick
import Kesto

/*! A row with a field. */
FieldRow {
    required property TableLine line
    readonly property string typing: field.text

    picture: line.image
    title: line.title
    subtitle: line.subtitle
    titleColor: line.ink
    struckThrough: line.struckThrough
    available: line.available
    current: line.current && !field.activeFocus
    first: line.isFirst
    last: line.isLast
    text: line.text
    placeholder: line.placeholder
    unit: line.unit
    keyboard: line.keyboard
    onBegan: line.table.fieldEntered(line)
    onTypingChanged: if (field.activeFocus) line.controller.editingTextChanged(line.section, line.row, typing)
    onCommitted: text => line.controller.endEditingText(line.section, line.row, text)
    onFinished: line.table.fieldLeft()
    Keys.onTabPressed: event => line.table.tabbed(line, 1, event)
    Keys.onBacktabPressed: event => line.table.tabbed(line, -1, event)
}
