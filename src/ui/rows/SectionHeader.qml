import QtQuick
import Kesto

/*! The text over a section of rows, or with \a footer the one under it. */
Item {
    id: header

    property string text
    property bool footer: false
    property bool first: false

    implicitHeight: text.length === 0 ? (footer ? Tokens.unit : Tokens.wide)
        : label.implicitHeight + (footer ? Tokens.unit + Tokens.gap : (first ? Tokens.margin : Tokens.wide) + Tokens.unit)

    Label {
        id: label

        x: Tokens.margin
        y: header.footer ? Tokens.unit : header.height - height - Tokens.unit
        width: parent.width - 2 * Tokens.margin
        text: header.text
        color: Tokens.colors.textQuiet
        font.pixelSize: Tokens.textSmall
        font.weight: header.footer ? Font.Normal : Font.Medium
        Accessible.ignored: text.length === 0
        Accessible.role: header.footer ? Accessible.StaticText : Accessible.Heading
        Accessible.name: text
    }
}
