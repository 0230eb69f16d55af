import QtQuick
import Kesto

/*! The wheels of a picker, or of a date picker, side by side. */
FocusScope {
    id: wheels

    required property Picker picker
    property string name

    implicitWidth: row.width
    implicitHeight: row.height
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: Math.max(36, Math.round(Tokens.textTitle * 1.7))
        radius: Tokens.smallRadius
        color: Tokens.colors.field
    }
    Row {
        id: row

        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Tokens.unit

        Repeater {
            id: repeater

            model: wheels.picker ? wheels.picker.components : []

            WheelColumn {
                id: column

                required property PickerComponent modelData
                required property int index

                width: Math.min(naturalWidth, (wheels.width - (repeater.count - 1) * row.spacing) / Math.max(1, repeater.count) * (repeater.count === 3 ? 1.4 : 1))
                focus: index === 0
                name: wheels.name
                titles: modelData ? modelData.titles : []
                current: modelData ? modelData.selectedRow : -1
                onChosen: row => modelData.select(row)
                Keys.onLeftPressed: event => wheels.step(-1, event)
                Keys.onRightPressed: event => wheels.step(1, event)
            }
        }
    }

    function step(by: int, event: var): void {
        for (let i = 0; i < repeater.count; ++i) {
            if (!repeater.itemAt(i).activeFocus)
                continue;
            const next = repeater.itemAt(i + by);
            if (next)
                next.forceActiveFocus(Qt.TabFocusReason);
            event.accepted = next !== null;
            return;
        }
    }
}
