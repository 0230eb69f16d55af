import QtQuick
import Kesto

/*! The wheels of a picker, or of a date picker, side by side. */
FocusScope {
    id: wheels

    required property Picker picker
    property string name
    property int visibleRows: 5
    /*! What the columns would take, and by how much each gives way for all to fit. */
    readonly property real natural: {
        let sum = 0;
        for (let i = 0; i < repeater.count; ++i)
            sum += (repeater.itemAt(i) as WheelColumn)?.naturalWidth ?? 0;
        return sum;
    }
    readonly property real share: Math.min(1, (width - (repeater.count - 1) * row.spacing) / Math.max(1, natural))

    implicitWidth: row.width
    implicitHeight: row.height
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: Tokens.wheelRowHeight
        radius: Tokens.smallRadius
        color: Tokens.colors.field
    }
    Row {
        id: row

        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Tokens.unit

        PointHandler {
            id: finger

            property Item around: null

            onActiveChanged: if (active) around = wheels.scrolledIn()
        }
        // What the wheels are in would take a drag for its own.
        Binding {
            target: finger.around
            property: "interactive"
            value: false
            when: finger.active && finger.around !== null
            restoreMode: Binding.RestoreBindingOrValue
        }
        Repeater {
            id: repeater

            model: wheels.picker ? wheels.picker.components : []

            WheelColumn {
                id: column

                required property PickerComponent modelData
                required property int index

                width: naturalWidth * wheels.share
                visibleRows: wheels.visibleRows
                focus: index === 0
                name: wheels.name
                titles: modelData ? modelData.titles : []
                current: modelData ? modelData.selectedRow : -1
                onChosen: row => {
                    if (modelData)
                        modelData.select(row);
                }
                Keys.onLeftPressed: event => wheels.step(-1, event)
                Keys.onRightPressed: event => wheels.step(1, event)

                Connections {
                    target: wheels.picker

                    function onShouldSettle(): void {
                        column.settleIfMoving();
                    }
                }
            }
        }
    }

    function scrolledIn(): Item {
        let item = wheels.parent;
        while (item && !(item instanceof Flickable))
            item = item.parent;
        return item;
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
