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
        sourceSize.width: 144
        sourceSize.height: 144
        fillMode: Image.Tile
        Accessible.ignored: true
    }
}
