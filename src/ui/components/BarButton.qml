import QtQuick
import Kesto

/*! A button of a bar: a picture or a title. */
Pressable {
    id: control

    property string picture
    /*! While the button is pressed, if given. */
    property string pressedPicture
    property string title
    property string name: title
    property bool back: false
    property color ink: Tokens.colors.barButton

    implicitWidth: Math.max(Tokens.rowHeight, content.implicitWidth + 2 * Tokens.unit)
    implicitHeight: Math.max(Tokens.rowHeight, content.implicitHeight)
    opacity: !enabled ? 0.45 : down && pressedPicture.length === 0 ? 0.5 : 1
    Accessible.name: name

    FocusRing {
        anchors.margins: 2
        shown: control.visualFocus
    }
    ButtonContent {
        id: content

        x: Tokens.unit
        width: control.width - 2 * x
        height: control.height
        picture: control.back ? "chevron_left" : control.down && control.pressedPicture.length > 0 ? control.pressedPicture : control.picture
        text: control.title
        ink: control.ink
        spacing: 2
        label.font.pixelSize: Math.min(Tokens.textBody, Tokens.textOfBars)
        label.fontSizeMode: Text.HorizontalFit
        label.minimumPixelSize: 12
        label.wrapMode: Text.NoWrap
        label.elide: Text.ElideRight
    }
}
