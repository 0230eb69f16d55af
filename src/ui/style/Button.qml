import QtQuick
import QtQuick.Templates as T
import Kesto

/*! A push button: plain text, filled with the accent (primary), or red (destructive); with a picture or without. */
T.Button {
    id: control

    property bool primary: false
    property bool destructive: false
    property string picture
    property int textSize: Tokens.textBody
    readonly property color ink: !enabled ? Tokens.colors.textDisabled
        : primary ? Tokens.colors.accentInk
        : destructive ? Tokens.colors.destructive : Tokens.colors.accentText

    implicitWidth: Math.max(Tokens.rowHeight, contentItem.implicitWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(Tokens.rowHeight, contentItem.implicitHeight + topPadding + bottomPadding)
    leftPadding: Tokens.wide
    rightPadding: Tokens.wide
    topPadding: Tokens.unit
    bottomPadding: Tokens.unit
    focusPolicy: Qt.StrongFocus

    Accessible.name: text
    Keys.onReturnPressed: event => control.enter(event)
    Keys.onEnterPressed: event => control.enter(event)

    /*! A key that is held down since before the button came is not meant for it. */
    function enter(event: var): void {
        if (!event.isAutoRepeat)
            clicked();
    }

    contentItem: ButtonContent {
        picture: control.picture
        text: control.text
        ink: control.ink
        label.font.pixelSize: control.textSize
        label.font.weight: control.primary ? Font.Medium : Font.Normal
    }

    background: Rectangle {
        radius: Tokens.smallRadius
        color: control.primary ? (control.enabled ? Tokens.colors.accent : Tokens.colors.trackOff)
            : control.down ? Tokens.colors.pressed : "transparent"
        opacity: control.primary && control.down ? 0.8 : 1

        FocusRing { shown: control.visualFocus }
    }
}
