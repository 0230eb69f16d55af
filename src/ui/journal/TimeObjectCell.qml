import QtQuick
import Kesto

/*! An item of a row: its picture and its name, one or two values with their units, and the button that tells about it. */
FocusScope {
    id: cell

    required property TableLine line
    readonly property var fields: line.shown.values
    readonly property real contentX: Tokens.margin + icon.width + Tokens.gap
    readonly property real room: info.x - contentX
    /*! Rows with two values look alike, whatever their titles are. */
    readonly property real titleRoom: fields.length > 1 ? Math.max(2 * Tokens.quantityWidth, title.implicitWidth) : title.implicitWidth
    readonly property bool stacked: titleRoom + Tokens.gap + values.naturalWidth > room

    /*! From part to part of the row, then to the next one. */
    function step(from: int, by: int, event: var): void {
        const to = from + by;
        event.accepted = true;
        if (to >= 0 && to < repeater.count)
            (repeater.itemAt(to) as TimeObjectField).take();
        else if (to === repeater.count)
            info.forceActiveFocus(Qt.TabFocusReason);
        else
            line.table.tabbed(line, by, event);
    }

    implicitHeight: Math.max(Tokens.rowHeight + 2 * Tokens.half,
                             stacked ? title.height + Tokens.half + values.height + 2 * Tokens.unit : Math.max(title.height, values.height) + Tokens.unit)
    Accessible.role: Accessible.Grouping
    Accessible.name: line.shown.title

    RowSurface {
        anchors.fill: parent
        first: cell.line.shown.isFirst
        last: cell.line.shown.isLast
        inset: cell.contentX
    }
    MouseArea {
        anchors.fill: parent
        onClicked: (repeater.itemAt(0) as TimeObjectField).take()
    }
    Icon {
        id: icon

        x: Tokens.margin
        y: (cell.height - height) / 2
        name: cell.line.shown.image
        color: cell.line.ink
    }
    Label {
        id: title

        x: cell.contentX
        y: cell.stacked ? Tokens.unit : (cell.height - height) / 2
        width: cell.stacked ? cell.room : cell.room - values.width - Tokens.gap
        text: cell.line.shown.title
    }
    Flow {
        id: values

        readonly property real naturalWidth: {
            let sum = 0;
            for (let i = 0; i < repeater.count; ++i)
                sum += repeater.itemAt(i).implicitWidth + (i > 0 ? spacing : 0);
            return sum;
        }

        x: cell.stacked ? cell.contentX : cell.contentX + cell.room - width
        y: cell.stacked ? title.y + title.height + Tokens.half : (cell.height - height) / 2
        width: Math.min(naturalWidth, cell.room)
        spacing: Tokens.gap

        Repeater {
            id: repeater

            model: cell.fields.length // their values change while the keys are in one of them

            TimeObjectField {
                required property int index
                readonly property var value: cell.fields[index]

                focus: index === 0
                room: cell.room
                text: value?.text ?? ""
                unit: value?.unit ?? ""
                name: value?.name ?? ""
                onBegan: cell.line.table.fieldEntered(cell.line)
                tag: value?.tag ?? 0
                onCommitted: (tag, text) => (cell.line.controller as TimeRowDetailViewController).endEditing(tag, text)
                onFinished: cell.line.table.fieldLeft()
                onTabbed: (by, event) => cell.step(index, by, event)
            }
        }
    }
    IconButton {
        id: info

        x: cell.width - width - Tokens.half
        y: (cell.height - height) / 2
        picture: "info_icon"
        name: Texts.localized("More information") + ": " + cell.line.shown.title
        activeFocusOnTab: false
        onClicked: cell.line.controller.touchAccessory(cell.line.shown.section, cell.line.shown.row)
        Keys.onTabPressed: event => cell.step(repeater.count, 1, event)
        Keys.onBacktabPressed: event => cell.step(repeater.count, -1, event)
    }
    FocusRing {
        anchors.margins: 2
        shown: cell.line.current && !cell.activeFocus
    }
}
