import QtQuick
import Kesto

/*! Takes a passcode: by the keys on the screen, or the digits and Backspace of a keyboard. */
FocusScope {
    id: view

    required property BKPasscodeViewController controller

    /*! In a low window the keys stand beside the prompt. */
    readonly property bool low: width > height && height < 10 * Tokens.rowHeight
    readonly property int gap: height < 14 * Tokens.rowHeight ? Tokens.unit : Tokens.gap
    readonly property real roomOfKeys: height - 2 * Tokens.margin - (low ? 0 : prompt.height + Tokens.wide)
    readonly property int keySize: Math.max(Tokens.smallestKey, Math.min(Tokens.largestKey, Math.floor((roomOfKeys - 3 * gap) / 4)))

    Keys.onPressed: event => {
        if (event.key >= Qt.Key_0 && event.key <= Qt.Key_9) {
            view.controller.digit(event.key - Qt.Key_0);
            event.accepted = true;
        } else if (event.key === Qt.Key_Backspace) {
            view.controller.deleteDigit();
            event.accepted = true;
        }
    }

    Background { anchors.fill: parent }
    Connections {
        target: view.controller
        function onShaken() {
            shake.restart();
        }
    }
    Column {
        id: prompt

        x: view.low ? Tokens.wide : (view.width - width) / 2
        y: view.low ? (view.height - height) / 2 : (view.height - height - Tokens.wide - keys.height) / 2
        width: Math.min((view.low ? keys.x : view.width) - 2 * Tokens.wide, Tokens.readableWidth)
        spacing: Tokens.gap

        Label {
            width: parent.width
            text: view.controller.prompt
            font.pixelSize: Tokens.textTitle
            font.weight: Font.Light
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: false
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Row {
            id: dots

            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Tokens.wide
            Accessible.role: Accessible.ProgressBar
            Accessible.name: view.controller.enteredLength + " / " + view.controller.passcodeLength

            Repeater {
                model: view.controller.passcodeLength

                Rectangle {
                    required property int index

                    width: Tokens.margin
                    height: width
                    radius: width / 2
                    color: index < view.controller.enteredLength ? Tokens.colors.tint : "transparent"
                    border.width: Tokens.focusWidth
                    border.color: Tokens.colors.tint
                }
            }
            SequentialAnimation {
                id: shake

                loops: Appearance.motion ? 2 : 0

                NumberAnimation { target: dots.anchors; property: "horizontalCenterOffset"; to: -Tokens.shakeWidth; duration: Tokens.shake }
                NumberAnimation { target: dots.anchors; property: "horizontalCenterOffset"; to: Tokens.shakeWidth; duration: 1.5 * Tokens.shake }
                NumberAnimation { target: dots.anchors; property: "horizontalCenterOffset"; to: 0; duration: Tokens.shake }
            }
        }
        Label {
            width: parent.width
            text: view.controller.message
            color: view.controller.isFailure ? Tokens.colors.destructive : Tokens.colors.textQuiet
            font.pixelSize: Tokens.textSmall
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: text.length === 0
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
    }
    Grid {
        id: keys

        x: view.low ? view.width - width - Math.max(Tokens.wide, view.width / 4 - width / 2) : (view.width - width) / 2
        y: view.low ? (view.height - height) / 2 : prompt.y + prompt.height + Tokens.wide
        columns: 3
        rowSpacing: view.gap
        columnSpacing: Tokens.wide

        Repeater {
            model: ["1", "2", "3", "4", "5", "6", "7", "8", "9", "", "0", "<"]

            Item {
                id: place

                required property string modelData
                required property int index

                width: view.keySize
                height: view.keySize

                PasscodeKey {
                    anchors.fill: parent
                    visible: place.modelData.length > 0
                    digit: place.modelData === "<" ? "" : place.modelData
                    focus: place.index === 0
                    enabled: view.controller.inputEnabled
                    onClicked: {
                        if (digit.length === 0)
                            view.controller.deleteDigit();
                        else
                            view.controller.digit(Number(digit));
                    }
                }
            }
        }
    }
}
