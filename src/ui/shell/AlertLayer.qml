import QtQuick
import Kesto

/*! The alert that is shown: a dialog in the middle, or a sheet at the bottom, on a tablet beside what it is about. */
FocusScope {
    id: over

    required property AlertCenter alertCenter
    required property AppWindow appWindow
    /*! Where the thing is looked for that a sheet points at. */
    required property Item root
    readonly property ShownAlert alert: alertCenter.current
    property Item shown: null

    /*! The alert is gone before its picture is, which therefore keeps what it shows. */
    function show(): void {
        draw();
        if (shown && enabled)
            shown.forceActiveFocus(Qt.OtherFocusReason);
    }
    function draw(): void {
        if (shown) {
            shown.visible = false;
            shown.destroy();
            shown = null;
        }
        if (!alert)
            return;
        const content = {
            title: alert.title,
            message: alert.message,
            buttonTitles: alert.buttonTitles,
            cancelButtonIndex: alert.cancelButtonIndex,
            destructiveButtonIndex: alert.destructiveButtonIndex
        };
        if (alert.style === Alert.ActionSheet) {
            content.anchor = appWindow.isTablet ? Anchors.find(root, alert.anchor, alert.context) : null;
            shown = sheet.createObject(over, content);
            arriving.restart();
            return;
        }
        content.hasTextField = alert.hasTextField;
        content.placeholder = alert.placeholder;
        content.text = alert.text;
        content.keyboard = alert.keyboard;
        content.picker = alert.datePicker;
        shown = dialog.createObject(over, content);
    }

    visible: alert !== null
    onAlertChanged: show()
    // It came while the program was locked.
    onEnabledChanged: if (shown && enabled) shown.forceActiveFocus(Qt.OtherFocusReason)
    Component.onCompleted: show()

    Rectangle {
        anchors.fill: parent
        color: Tokens.colors.veil
    }
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onClicked: if (over.alert && over.alert.style === Alert.ActionSheet && !arriving.running) over.alert.cancel()
        onWheel: {}
    }
    // The second touch of two quick ones was not meant for what is beside the sheet.
    Timer {
        id: arriving

        interval: Tokens.arrival
    }
    Component {
        id: dialog

        AlertDialog {
            anchors.centerIn: parent
            width: Math.min(implicitWidth, over.width - 2 * Tokens.wide)
            focus: true
            onAnswered: button => over.alert.answer(button)
            onCancelled: over.alert.cancel()
            onEdited: text => over.alert.text = text
        }
    }
    Component {
        id: sheet

        ActionSheet {
            id: actions

            property Item anchor: null
            readonly property rect target: {
                over.width; over.height;
                return anchor ? anchor.mapToItem(over, Qt.rect(0, 0, anchor.width, anchor.height)) : Qt.rect(0, 0, 0, 0);
            }
            readonly property bool below: target.y + target.height + Tokens.unit + height < over.height - Tokens.unit

            focus: true
            onAnswered: button => over.alert.answer(button)
            onCancelled: over.alert.cancel()
            width: Math.min(over.appWindow.isTablet ? Tokens.popoverWidth : Tokens.readableWidth, over.width - 2 * Tokens.unit)
            x: anchor ? Math.max(Tokens.unit, Math.min(over.width - width - Tokens.unit, target.x + target.width / 2 - width / 2))
                : (over.width - width) / 2
            y: anchor ? (below ? target.y + target.height + Tokens.unit : Math.max(Tokens.unit, target.y - Tokens.unit - height))
                : over.appWindow.isTablet ? (over.height - height) / 2 : over.height - height - Tokens.unit + drop
            property real drop: arrived ? 0 : height
            property bool arrived: false

            Behavior on drop { NumberAnimation { duration: Tokens.normal; easing.type: Easing.OutCubic } }
            Component.onCompleted: arrived = true
        }
    }
}
