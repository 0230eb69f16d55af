import QtQuick
import Kesto

/*! A row with a switch. */
SwitchRow {
    required property TableLine line

    picture: line.shown.image
    title: line.shown.title
    subtitle: line.shown.subtitle
    titleColor: line.ink
    available: line.shown.enabled
    current: line.current
    first: line.shown.isFirst
    last: line.shown.isLast
    on: line.shown.on
    onTurned: on => line.controller.turnSwitch(line.shown.section, line.shown.row, on)
}
