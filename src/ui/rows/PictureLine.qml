import QtQuick
import Kesto

/*! A row with a large picture. */
PictureRow {
    required property TableLine line

    picture: line.image
    title: line.title
    subtitle: line.subtitle
    available: line.available
    selectable: line.selectable
    current: line.current
    first: line.isFirst
    last: line.isLast
    onActivated: {
        line.table.touched(line);
        line.controller.selectRow(line.section, line.row);
    }
}
