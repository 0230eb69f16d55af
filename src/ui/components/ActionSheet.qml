import QtQuick
import Kesto

/*! A choice of what to do, from the edge or beside the thing it is about. The choice that cancels stands apart, at the end. */
FocusScope {
    id: sheet

    property string title
    property string message
    required property var buttonTitles
    property int cancelButtonIndex: -1
    property int destructiveButtonIndex: -1
    readonly property var order: {
        const choices = [];
        for (let i = 0; i < buttonTitles.length; ++i) {
            if (i !== cancelButtonIndex)
                choices.push(i);
        }
        if (cancelButtonIndex >= 0)
            choices.push(cancelButtonIndex);
        return choices;
    }

    signal answered(int button)
    signal cancelled

    implicitWidth: Tokens.popoverWidth
    implicitHeight: column.height
    Accessible.role: Accessible.AlertMessage
    Accessible.name: Texts.joined([title, message], ". ")
    Keys.onEscapePressed: cancelled()
    // Where Enter does no harm.
    Component.onCompleted: {
        const place = order.findIndex(button => button !== cancelButtonIndex && button !== destructiveButtonIndex);
        const button = repeater.itemAt(place < 0 ? order.length - 1 : place);
        if (button)
            button.focus = true;
    }

    Rectangle {
        width: parent.width
        height: column.lastTop - Tokens.half
        radius: Tokens.radius
        color: Tokens.colors.surfaceRaised
    }
    Rectangle {
        y: column.lastTop
        width: parent.width
        height: column.height - y
        radius: Tokens.radius
        color: Tokens.colors.surfaceRaised
        visible: sheet.cancelButtonIndex >= 0
    }
    Column {
        id: column

        readonly property Item last: repeater.count > 0 && sheet.cancelButtonIndex >= 0 ? repeater.itemAt(repeater.count - 1) : null
        readonly property real lastTop: last ? last.y : height + Tokens.half

        width: parent.width

        Label {
            x: Tokens.margin
            width: parent.width - 2 * x
            visible: text.length > 0
            topPadding: Tokens.gap
            bottomPadding: Tokens.gap
            text: Texts.joined([sheet.title, sheet.message], "\n")
            color: Tokens.colors.textQuiet
            font.pixelSize: Tokens.textSmall
            horizontalAlignment: Text.AlignHCenter
        }
        Repeater {
            id: repeater

            model: sheet.order

            Button {
                required property int modelData
                required property int index
                readonly property bool cancels: modelData === sheet.cancelButtonIndex

                width: column.width
                height: Math.max(Tokens.rowHeight + Tokens.unit, implicitHeight)
                text: sheet.buttonTitles[modelData]
                destructive: modelData === sheet.destructiveButtonIndex
                onClicked: sheet.answered(modelData)
                Keys.onUpPressed: passFocus(false)
                Keys.onDownPressed: passFocus(true)

                Rectangle {
                    width: parent.width
                    height: parent.cancels ? Tokens.unit : Tokens.hairline
                    visible: !parent.cancels
                    color: Tokens.colors.separator
                }
            }
        }
    }
}
