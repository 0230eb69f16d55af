import QtQuick

Theme {
    bar: "#2f5a30"
    barTitle: "#ffffff"
    barTitleShade: "#1d3a1e"
    barButton: "#d9e8d8"
    barLine: "#244a25"

    page: "#121512"
    pattern: false
    surface: "#1d211d"
    surfaceRaised: "#272c27"
    pressed: "#2b332b"
    selected: "#3a413a"
    separator: "#343a34"
    field: "#2a302a"
    veil: "#99000000"

    text: "#eef2ee"
    textQuiet: "#a8b2a8"
    textDisabled: "#667066"
    icon: "#c3cbc3"
    accentInk: "#ffffff"

    tint: "#c3cbc3"
    accent: "#4f9d4d"
    accentText: "#8fd68d"
    destructive: "#ef6a6a"
    focus: "#8fd68d"
    trackOff: "#454d45"
    knob: "#ffffff"
    today: "#82bd54"
}
