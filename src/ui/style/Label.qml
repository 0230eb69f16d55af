import QtQuick
import Kesto

/*!
    Plain text of the interface: wraps instead of clipping, never reads markup. Large text gets smaller where a word would
    be broken otherwise.
*/
Text {
    textFormat: Text.PlainText
    wrapMode: Tokens.wrapMode
    fontSizeMode: Tokens.fitMode
    minimumPixelSize: Tokens.smallestText
    maximumLineCount: 1000 // a limit there must be, or a line that is too wide does not count as one that does not fit
    color: Tokens.colors.text
    font.family: Tokens.family
    font.pixelSize: Tokens.textBody
    Accessible.ignored: true
}
