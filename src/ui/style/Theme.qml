import QtQuick

/*! The colours of one theme. A theme is one table: a file that gives each of these a value. */
QtObject {
    // Bars
    required property color bar
    required property color barTitle
    required property color barTitleShade
    required property color barButton
    required property color barLine
    required property color tabTitle
    required property color tabTitleChosen

    // Surfaces, from the back to the front
    required property color page
    required property bool pattern
    required property color surface
    required property color surfaceRaised
    required property color pressed
    required property color selected
    required property color separator
    required property color field
    required property color veil

    // Texts and pictures
    required property color text
    required property color textQuiet
    required property color textDisabled
    required property color icon
    required property color accentInk

    // What can be touched, and what a touch means
    required property color tint
    required property color accent
    required property color accentText
    required property color destructive
    required property color focus
    required property color trackOff
    required property color knob
    required property color today
    required property color water
    required property color photoLine

    // Behind and on the drawings that stand for photos, one a category of dishes, and one for all others
    required property var shades
    required property var inks
}
