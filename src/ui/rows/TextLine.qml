import QtQuick
import Kesto

/*! A row of texts, with a value, or a title that acts. */
ListRow {
    required property TableLine line

    picture: line.image
    title: line.title
    subtitle: line.subtitle
    detail: line.detail
    titleColor: line.ink
    destructive: line.destructive
    struckThrough: line.struckThrough
    centred: line.kind === TableRow.Button && line.image.length === 0
    available: line.available
    selectable: line.selectable && !line.deleteShown
    selected: line.selected && line.accessory !== TableRow.Checkmark
    marked: line.accessory === TableRow.Checkmark
    accessory: line.accessory
    accessoryName: line.accessory === TableRow.InfoButton ? Texts.localized("More information")
        : Texts.localized("checkmarkButton") + ": " + line.title
    checked: line.checked
    badges: line.badges
    current: line.current
    first: line.isFirst
    last: line.isLast
    role: line.kind === TableRow.Button ? Accessible.Button : checkable ? Accessible.CheckBox : Accessible.ListItem
    onActivated: {
        line.table.touched(line);
        line.controller.selectRow(line.section, line.row);
    }
    onAccessoryTouched: line.controller.touchAccessory(line.section, line.row)
}
