import QtQuick
import Kesto

/*! A whole screen that says what the program is busy with. */
Rectangle {
    id: page

    property string text
    property string picture: Styllesheet.backgroundImage

    color: Tokens.colors.bar
    Accessible.role: Accessible.Indicator
    Accessible.name: text

    Image {
        anchors.fill: parent
        source: "image://kesto/" + page.picture
        sourceSize.width: Tokens.patternSize
        sourceSize.height: Tokens.patternSize
        fillMode: Image.Tile
        Accessible.ignored: true
    }
    Column {
        anchors.centerIn: parent
        width: parent.width - 2 * Tokens.wide
        spacing: Tokens.wide

        Label {
            width: parent.width
            text: page.text
            color: Tokens.colors.barTitle
            style: Text.Raised
            styleColor: Tokens.colors.barTitleShade
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            font.pixelSize: Tokens.textLarge
            font.weight: Font.Light
            horizontalAlignment: Text.AlignHCenter
        }
        BusyIndicator {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Tokens.colors.barTitle
        }
    }
}
