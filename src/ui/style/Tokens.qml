pragma Singleton

import QtQuick
import Kesto

/*! Every colour, size, font and duration of the interface. Nothing else in the module states one but shares of what there is
    and single points. */
QtObject {
    id: tokens

    readonly property Theme colors: Appearance.dark ? dark : light
    readonly property Theme light: LightTheme {
        bar: Styllesheet.barTintColor
        barTitle: Styllesheet.barTitleColor
        tabTitle: Styllesheet.tabTitleColor
        tabTitleChosen: Styllesheet.selectedTabTitleColor
        icon: Styllesheet.tintColor
        tint: Styllesheet.tintColor
    }
    readonly property Theme dark: DarkTheme {}

    // The 8-point grid
    readonly property int half: 4
    readonly property int unit: 8
    readonly property int gap: 12
    readonly property int margin: 16
    readonly property int wide: 24
    readonly property int huge: 32

    readonly property int rowHeight: 44
    readonly property int barHeight: 44
    readonly property int radius: 12
    readonly property int smallRadius: 8
    readonly property int hairline: 1
    readonly property int focusWidth: 2
    readonly property int phaseHeight: 4

    /*! Of the days of a calendar that can't be chosen, and of those beside its month. */
    readonly property real disabledOpacity: 0.4
    readonly property real otherMonthOpacity: 0.55

    /*! The widest column of text and rows that still reads well. */
    readonly property int readableWidth: 640
    readonly property int menuWidth: 288
    readonly property int masterWidth: 320
    readonly property int popoverWidth: 360
    readonly property int popoverHeight: 420
    readonly property int dialogWidth: 300
    /*! Of a tile of the pattern behind everything. */
    readonly property int patternSize: 144
    /*! The narrowest window. */
    readonly property int narrowest: 320
    /*! What stands for a phase, and what begins a line of a list. */
    readonly property int dot: 10
    readonly property int bullet: 6
    readonly property int productRowHeight: 54
    readonly property int quantityWidth: 64
    readonly property int pictureRowSize: 160
    readonly property int searchWidth: 200
    readonly property int scopeInset: 3
    readonly property int smileInset: 3
    readonly property int switchWidth: 51
    readonly property int switchHeight: 31
    readonly property int sliderWidth: 160
    readonly property int knobSize: 28
    /*! What tells where a row goes that is carried. */
    readonly property int dropLineHeight: 3
    /*! The widest wheel, and one of its rows. */
    readonly property int wheelWidth: 260
    readonly property int wheelRowHeight: Math.max(36, Math.round(textTitle * 1.7))
    // A pad of round keys
    readonly property int largestKey: 76
    readonly property int smallestKey: 44
    readonly property int shakeWidth: 12
    // The journal's tiles, its drop and its dial
    readonly property int tileWidth: Math.round(80 * pictureScale)
    readonly property int smallestTile: Math.round(64 * pictureScale)
    readonly property int tilePicture: Math.round(32 * pictureScale)
    readonly property int dropWidth: 132
    readonly property int dialSize: 260
    readonly property int dialThickness: 12
    readonly property int barThickness: 10
    /*! The colours of water among those of the categories. */
    readonly property int waterShade: 7

    // Pictures grow with the text, but less
    readonly property real pictureScale: 1 + (textScale - 1) * 0.5
    readonly property int icon: Math.round(24 * pictureScale)
    readonly property int smallIcon: Math.round(18 * pictureScale)
    readonly property int tinyIcon: Math.round(14 * pictureScale)
    readonly property int largeIcon: Math.round(48 * pictureScale)

    // Type
    readonly property real textScale: Appearance.textScale
    /*! Measures body text. */
    readonly property FontMetrics bodyMetrics: FontMetrics {
        font.family: tokens.family
        font.pixelSize: tokens.textBody
    }
    readonly property int smallestText: 10
    /*! How labels come to terms with words that are wider than they; text of the usual size hardly has such. */
    readonly property int wrapMode: textScale > 1 ? Text.WordWrap : Text.Wrap
    readonly property int fitMode: textScale > 1 ? Text.Fit : Text.FixedSize
    readonly property string family: Styllesheet.fontFamily
    readonly property int textCaption: Math.round(12 * textScale)
    // The largest in bars, which have little room
    readonly property int textOfTabs: 15
    readonly property int textOfScopes: 17
    readonly property int textOfBars: 24
    readonly property int textOfTitles: 28
    readonly property int textOfPeriods: Math.round(10 * textScale)
    readonly property int textSmall: Math.round(14 * textScale)
    readonly property int textBody: Math.round(16 * textScale)
    readonly property int textTitle: Math.round(Styllesheet.barTitleSize * textScale)
    readonly property int textLarge: Math.round(22 * textScale)
    readonly property int textHuge: Math.round(34 * textScale)
    readonly property int textDial: Math.round(56 * textScale)

    // Motion
    readonly property int quick: Appearance.motion ? 120 : 0
    readonly property int normal: Appearance.motion ? 200 : 0
    readonly property int slow: Appearance.motion ? 240 : 0
    /*! One way of what is shaken, which is not shaken when motion is off. */
    readonly property int shake: 40
    /*! What came after a touch takes none for so long. */
    readonly property int arrival: 300
    /*! One turn of what turns while the program works; it stands still when motion is off. */
    readonly property int turn: 1200

    /*! The colours of a category of dishes (0 to 8), or of none. */
    function shadeOf(category: int): color {
        return colors.shades[category >= 0 && category < 9 ? category : 9];
    }
    function inkOf(category: int): color {
        return colors.inks[category >= 0 && category < 9 ? category : 9];
    }
}
