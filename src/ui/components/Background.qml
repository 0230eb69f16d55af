import QtQuick
import Kesto

/*! The faint pattern behind everything. */
Rectangle {
    id: background

    property string picture: Styllesheet.backgroundImage

    color: Tokens.colors.page

    Image {
        anchors.fill: parent
        visible: Tokens.colors.pattern
        source: "image://kesto/" + encodeURIComponent(background.picture)
        sourceSize.width: Tokens.patternSize
        sourceSize.height: Tokens.patternSize
        fillMode: Image.Tile
        Accessible.ignored: true
    }
}
