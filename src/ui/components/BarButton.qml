import QtQuick
import QtQuick.Templates as T
import Kesto

/*! A button of a bar: a picture or a title. */
T.AbstractButton {
    id: control

    property string picture
    /*! While the button is pressed, if given. */
    property string pressedPicture
    property string title
    property string name: title
    property bool back: false
    property color ink: Tokens.colors.barButton

    implicitWidth: Math.max(Tokens.rowHeight, contentItem.implicitWidth + 2 * Tokens.unit)
    implicitHeight: Math.max(Tokens.rowHeight, contentItem.implicitHeight)
    leftPadding: Tokens.unit
    rightPadding: Tokens.unit
    focusPolicy: Qt.StrongFocus
    opacity: !enabled ? 0.45 : down && pressedPicture.length === 0 ? 0.5 : 1

    Accessible.role: Accessible.Button
    Accessible.name: name
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    contentItem: ButtonContent {
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
    background: Item {
        FocusRing {
            anchors.margins: 2
            shown: control.visualFocus
        }
    }
}
