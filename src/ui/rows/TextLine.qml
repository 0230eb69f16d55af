import QtQuick
import Kesto

/*! A row of texts, with a value, or a title that acts. */
ListRow {
    required property TableLine line

    picture: line.shown.image
    title: line.shown.title
    subtitle: line.shown.subtitle
    detail: line.shown.detail
    titleColor: line.ink
    destructive: line.shown.destructive
    struckThrough: line.shown.struckThrough
    centred: line.shown.kind === TableRow.Button && line.shown.image.length === 0
    available: line.shown.enabled
    selectable: line.shown.selectable && !line.deleteShown
    selected: line.shown.selected && line.shown.accessory !== TableRow.Checkmark
    marked: line.shown.accessory === TableRow.Checkmark
    accessory: line.shown.accessory
    accessoryName: line.shown.accessory === TableRow.InfoButton ? Texts.localized("More information")
        : Texts.localized("checkmarkButton") + ": " + line.shown.title
    checked: line.shown.checked
    badges: line.shown.badges
    current: line.current
    first: line.shown.isFirst
    last: line.shown.isLast
    role: line.shown.kind === TableRow.Button ? Accessible.Button : checkable ? Accessible.CheckBox : Accessible.ListItem
    onActivated: {
        line.table.touched(line);
        line.controller.selectRow(line.shown.section, line.shown.row);
    }
    onAccessoryTouched: line.controller.touchAccessory(line.shown.section, line.shown.row)
}
