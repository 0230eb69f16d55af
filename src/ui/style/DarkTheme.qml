import QtQuick

Theme {
    bar: "#2f5a30"
    barTitle: "#ffffff"
    barTitleShade: "#1d3a1e"
    barButton: "#d9e8d8"
    barLine: "#244a25"
    tabTitle: "#d9e8d8"
    tabTitleChosen: "#ffffff"

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
    water: "#5a93bb"
    photoLine: "#d4d4d4"

    shades: ["#28352a", "#363025", "#392c27", "#372a2a", "#343024", "#372a32", "#393124", "#25323a", "#2e2c3a", "#2c312c"]
    inks: ["#86ab80", "#b99f70", "#bf947e", "#b48b89", "#b09c66", "#b58aa1", "#bd9c62", "#7ba3bb", "#958fb6", "#8d968d"]
}
