import QtQuick
import Kesto

/*! A field whose every change searches. Escape, or the cross, ends the search. */
FocusScope {
    id: search

    property string text
    property alias placeholder: field.placeholderText

    signal edited(string text)
    /*! The search ended; the keys belong to the list again. */
    signal finished

    implicitWidth: Tokens.searchWidth
    implicitHeight: field.implicitHeight

    function clear(): void {
        field.revert();
        search.edited("");
    }

    TextField {
        id: field

        anchors.fill: parent
        focus: true
        leftPadding: Tokens.smallIcon + 2 * Tokens.gap
        rightPadding: clear.visible ? clear.width : Tokens.gap
        placeholderText: Texts.localized("Search")
        value: search.text
        fill: Tokens.colors.surface
        frame: Tokens.hairline
        inputMethodHints: Qt.ImhNoPredictiveText
        onTextEdited: search.edited(text)
        onFinished: search.finished()
        Keys.onEscapePressed: event => {
            if (length === 0) {
                event.accepted = false;
                return;
            }
            search.clear();
        }
        Icon {
            x: Tokens.gap
            anchors.verticalCenter: parent.verticalCenter
            name: "search"
            size: Tokens.smallIcon
            color: Tokens.colors.textQuiet
        }
    }
    IconButton {
        id: clear

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: field.length > 0
        picture: "close"
        size: Tokens.smallIcon
        name: Texts.localized("Clear")
        onClicked: {
            search.clear();
            field.forceActiveFocus();
        }
    }
}
