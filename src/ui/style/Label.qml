import QtQuick
import Kesto

/*! Plain text of the interface: wraps instead of clipping, never reads markup. */
Text {
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    color: Tokens.colors.text
    font.family: Tokens.family
    font.pixelSize: Tokens.textBody
    Accessible.ignored: true
}
