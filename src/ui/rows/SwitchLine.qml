import QtQuick
import Kesto

/*! A row with a switch. */
SwitchRow {
    required property TableLine line

    picture: line.image
    title: line.title
    subtitle: line.subtitle
    titleColor: line.ink
    available: line.available
    current: line.current
    first: line.isFirst
    last: line.isLast
    on: line.on
    onTurned: on => line.controller.turnSwitch(line.section, line.row, on)
}
