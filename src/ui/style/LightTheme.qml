import QtQuick

Theme {
    bar: "#96db94"
    barTitle: "#ffffff"
    barTitleShade: "#5aa558"
    barButton: "#46564a"
    barLine: "#7fc47d"

    page: "#f4f7f3"
    pattern: true
    surface: "#ffffff"
    surfaceRaised: "#ffffff"
    pressed: "#e9f2e8"
    selected: "#d1d1d1"
    separator: "#e1e6e0"
    field: "#eef2ed"
    veil: "#66000000"

    text: "#2b2f2b"
    textQuiet: "#6b736b"
    textDisabled: "#a9b0a9"
    icon: "#5c5c5c"
    accentInk: "#ffffff"

    tint: "#5c5c5c"
    accent: "#5aae57"
    accentText: "#2f7d2e"
    destructive: "#d23f3f"
    focus: "#2f7d2e"
    trackOff: "#d7ddd6"
    knob: "#ffffff"
    today: "#82bd54"
}
