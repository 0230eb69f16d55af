import QtQuick
import Kesto

/*! What was taken in and, after a stroke, what it should be; on one line as long as that fits. */
Flow {
    id: text

    required property string current
    required property string norm
    property bool centred: false
    property int size: Tokens.textLarge
    readonly property real naturalWidth: currentLabel.implicitWidth + normLabel.implicitWidth

    leftPadding: centred ? Math.max(0, (width - naturalWidth) / 2) : 0
    visible: current.length > 0
    Accessible.role: Accessible.StaticText
    Accessible.name: current + norm

    Label {
        id: currentLabel

        text: text.current
        color: Tokens.colors.accentText
        font.pixelSize: text.size
        font.weight: Font.Medium
        wrapMode: Text.NoWrap
    }
    Label {
        id: normLabel

        text: text.norm
        color: Tokens.colors.textQuiet
        font.pixelSize: text.size
        wrapMode: Text.NoWrap
    }
}
