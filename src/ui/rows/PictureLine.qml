import QtQuick
import Kesto

/*! A row with a large picture. */
PictureRow {
    required property TableLine line

    picture: line.shown.image
    title: line.shown.title
    subtitle: line.shown.subtitle
    available: line.shown.enabled
    selectable: line.shown.selectable
    current: line.current
    first: line.shown.isFirst
    last: line.shown.isLast
    onActivated: {
        line.table.touched(line);
        line.controller.selectRow(line.shown.section, line.shown.row);
    }
}
