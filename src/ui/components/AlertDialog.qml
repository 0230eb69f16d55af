import QtQuick
import QtQuick.Layouts
import Kesto

/*! A question in the middle: title, message, a field or wheels, and buttons. Enter presses the button that does it, Escape cancels. */
FocusScope {
    id: dialog

    property string title
    property string message
    required property var buttonTitles
    property int cancelButtonIndex: -1
    property int destructiveButtonIndex: -1
    property bool hasTextField: false
    property string placeholder
    property string text
    property int keyboard: Keyboard.Text
    property Picker picker: null
    readonly property int preferred: {
        const count = buttonTitles.length;
        for (let i = 0; i < count; ++i) {
            if (i !== cancelButtonIndex && i !== destructiveButtonIndex)
                return i;
        }
        return count === 1 ? 0 : cancelButtonIndex;
    }
    readonly property bool sideBySide: buttonTitles.length === 2 && buttons.widest <= (card.width - 3 * Tokens.unit) / 2

    readonly property real room: parent ? parent.height - 2 * Tokens.wide : 10000
    /*! Fewer rows of a wheel where there is little room. */
    readonly property bool low: room < 10 * Tokens.wheelRowHeight

    signal answered(int button)
    signal cancelled
    signal edited(string text)

    /*! A key that is held down since before the question came does not answer it. */
    function enter(event: var): void {
        if (!event.isAutoRepeat)
            answered(preferred);
    }

    implicitWidth: Math.round(Tokens.dialogWidth * (1 + (Tokens.textScale - 1) * 0.3))
    implicitHeight: card.height
    Accessible.role: Accessible.AlertMessage
    Accessible.name: Texts.joined([title, message], ". ")

    Keys.onEscapePressed: cancelled()
    Component.onCompleted: {
        const first = hasTextField ? field : picker ? wheels : buttons.preferredButton();
        if (first)
            first.focus = true;
    }

    Rectangle {
        id: card

        width: parent.width
        height: Math.min(column.height + buttons.height + 3 * Tokens.unit, dialog.room)
        radius: Tokens.radius
        color: Tokens.colors.surfaceRaised

        Flickable {
            id: scroll

            x: Tokens.unit
            y: Tokens.unit
            width: parent.width - 2 * x
            height: parent.height - buttons.height - 3 * Tokens.unit
            contentHeight: column.height
            clip: contentHeight > height
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds

            /*! What has the keys can be seen. */
            function reveal(): void {
                if (field.activeFocus)
                    centre(field);
                else if (wheels.activeFocus)
                    centre(wheels);
            }
            function centre(item: Item): void {
                contentY = Math.max(0, Math.min(contentHeight - height, item.y + item.height / 2 - height / 2));
            }

            onHeightChanged: reveal()
            onContentHeightChanged: reveal()

            Column {
                id: column

                width: scroll.width
                spacing: Tokens.unit

                Item {
                    width: 1
                    height: Tokens.half
                }
                Label {
                    x: Tokens.unit
                    width: parent.width - 2 * x
                    visible: text.length > 0
                    text: dialog.title
                    font.weight: Font.Medium
                    font.pixelSize: Tokens.textTitle
                    horizontalAlignment: Text.AlignHCenter
                }
                Label {
                    x: Tokens.unit
                    width: parent.width - 2 * x
                    visible: text.length > 0
                    text: dialog.message
                    color: dialog.title.length > 0 ? Tokens.colors.textQuiet : Tokens.colors.text
                    horizontalAlignment: Text.AlignHCenter
                }
                TextField {
                    id: field

                    x: Tokens.unit
                    width: parent.width - 2 * x
                    visible: dialog.hasTextField
                    name: dialog.title
                    placeholderText: dialog.placeholder
                    value: dialog.text
                    inputMethodHints: dialog.keyboard === Keyboard.Decimal ? Qt.ImhFormattedNumbersOnly
                        : dialog.keyboard === Keyboard.Number ? Qt.ImhDigitsOnly
                        : dialog.keyboard === Keyboard.Email ? Qt.ImhEmailCharactersOnly : Qt.ImhNone
                    onActiveFocusChanged: scroll.reveal()
                    onTextEdited: {
                        dialog.text = text;
                        dialog.edited(text);
                    }
                    Keys.onReturnPressed: event => dialog.enter(event)
                    Keys.onEnterPressed: event => dialog.enter(event)
                    Keys.onEscapePressed: dialog.cancelled()
                }
                Loader {
                    id: wheels

                    width: parent.width
                    active: dialog.picker !== null
                    visible: active
                    onActiveFocusChanged: scroll.reveal()
                    sourceComponent: WheelPicker {
                        focus: true
                        picker: dialog.picker
                        visibleRows: dialog.low ? 3 : 5
                        name: dialog.title
                        Keys.onReturnPressed: event => dialog.enter(event)
                        Keys.onEnterPressed: event => dialog.enter(event)
                    }
                }
            }
        }
        GridLayout {
            id: buttons

            readonly property real widest: {
                let width = 0;
                for (let i = 0; i < repeater.count; ++i)
                    width = Math.max(width, (repeater.itemAt(i) as Button)?.implicitWidth ?? 0);
                return width;
            }

            function preferredButton(): Item {
                return repeater.itemAt(Math.max(0, dialog.preferred));
            }

            x: Tokens.unit
            y: parent.height - height - Tokens.unit
            width: parent.width - 2 * x
            columns: dialog.sideBySide ? 2 : 1
            columnSpacing: Tokens.unit
            rowSpacing: Tokens.half

            Repeater {
                id: repeater

                model: dialog.buttonTitles

                Button {
                    required property string modelData
                    required property int index

                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    text: modelData
                    primary: index === dialog.preferred && index !== dialog.cancelButtonIndex
                    destructive: index === dialog.destructiveButtonIndex
                    onClicked: dialog.answered(index)
                    Keys.onUpPressed: passFocus(false)
                    Keys.onLeftPressed: passFocus(false)
                    Keys.onDownPressed: passFocus(true)
                    Keys.onRightPressed: passFocus(true)
                }
            }
        }
    }
}
