import QtQuick
import Kesto

/*! What was taken of a norm: a bar over its words. A touch leads to where it is kept. */
Pressable {
    id: summary

    required property string text
    required property real share
    required property string picture
    required property color tone

    implicitHeight: content.height + 2 * Tokens.gap
    opacity: down ? 0.6 : 1
    Accessible.name: text.replace("\n", ", ")

    FocusRing { shown: summary.visualFocus }
    Column {
        id: content

        x: Tokens.gap
        y: Tokens.gap
        width: summary.width - 2 * x
        spacing: Tokens.unit

        Row {
            width: parent.width
            spacing: Tokens.unit

            Icon {
                id: icon

                name: summary.picture
                color: summary.tone
            }
            Label {
                width: parent.width - icon.width - Tokens.unit
                text: summary.text
                font.pixelSize: Tokens.textSmall
                lineHeight: 1.15
            }
        }
        BalanceBar {
            width: parent.width
            share: summary.share
            fill: summary.tone
            Accessible.ignored: true
        }
    }
}
