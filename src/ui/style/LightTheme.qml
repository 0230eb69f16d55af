import QtQuick

/*! Tokens adds what the style sheet says. */
Theme {
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
    accentInk: "#ffffff"

    accent: "#5aae57"
    accentText: "#2f7d2e"
    destructive: "#d23f3f"
    focus: "#2f7d2e"
    trackOff: "#d7ddd6"
    knob: "#ffffff"
    today: "#82bd54"
    water: "#7fb2d6"
    photoLine: "#d4d4d4"

    shades: ["#e2efdf", "#f5ecdc", "#f8e6de", "#f2e3e2", "#f3ebd4", "#f4e3ec", "#f9ecd4", "#dfecf3", "#e7e6f2", "#eaedea"]
    inks: ["#6f9a68", "#ab8d59", "#b58268", "#a47774", "#a08a4c", "#a5748e", "#b08a48", "#6490aa", "#7f78a3", "#8b938b"]
}
