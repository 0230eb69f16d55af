import QtQuick
import Kesto

/*!
    A row of the day: at the left its time on the line of time, at the right what is planned and the button that marks it
    done. What is done is quiet; the next row stands out.
*/
Item {
    id: cell

    required property TableLine line
    readonly property var plan: line.shown.value
    readonly property bool next: plan.next.length > 0
    readonly property color ink: line.shown.checked ? Tokens.colors.textDisabled : Tokens.colors.text
    readonly property real pad: Tokens.gap
    readonly property real timeWidth: Math.ceil(Tokens.bodyMetrics.advanceWidth("00:00")) + 2
    /*! Large text on a small window: the time stands in the card. */
    readonly property bool tight: width < 5 * timeWidth

    implicitHeight: Math.max(Tokens.rowHeight + 2 * Tokens.half, content.height + 2 * pad + (tight ? time.height : 0)) + Tokens.unit
    Accessible.role: Accessible.ListItem
    Accessible.name: plan.name
    Accessible.checkable: true
    Accessible.checked: line.shown.checked
    Accessible.focusable: true
    Accessible.onPressAction: touch.choose()

    // The line of time
    Rectangle {
        x: Math.round(dot.x + dot.width / 2 - width / 2)
        y: cell.line.shown.isFirst ? dot.y : 0
        width: Tokens.focusWidth
        height: (cell.line.shown.isLast ? dot.y : cell.height) - y
        color: Tokens.colors.separator
    }
    Label {
        id: time

        x: cell.tight ? content.x : 0
        y: cell.pad + (Tokens.icon - height) / 2
        z: 1
        width: cell.timeWidth
        text: cell.line.shown.title
        color: cell.next ? Tokens.colors.accentText : cell.line.shown.checked ? Tokens.colors.textDisabled : Tokens.colors.textQuiet
        font.weight: cell.next ? Font.Bold : Font.Normal
        horizontalAlignment: cell.tight ? Text.AlignLeft : Text.AlignRight
        wrapMode: Text.NoWrap
    }
    Rectangle {
        id: dot

        x: cell.tight ? 0 : time.width + Tokens.unit
        y: time.y + (time.height - height) / 2
        width: Tokens.dot
        height: Tokens.dot
        radius: width / 2
        color: cell.line.shown.checked ? Tokens.colors.accent : cell.next ? Tokens.colors.accent : Tokens.colors.surface
        border.width: Tokens.focusWidth
        border.color: cell.line.shown.checked || cell.next ? Tokens.colors.accent : Tokens.colors.textDisabled
    }
    Rectangle {
        id: card

        x: dot.x + dot.width + Tokens.unit
        width: cell.width - x
        height: cell.height - Tokens.unit
        radius: Tokens.radius
        color: touch.pressed && touch.containsMouse || cell.line.shown.selected ? Tokens.colors.pressed : Tokens.colors.surface
        border.width: cell.next ? Tokens.focusWidth : 0
        border.color: Tokens.colors.accent
    }
    MouseArea {
        id: touch

        function choose(): void {
            cell.line.table.touched(cell.line);
            cell.line.controller.selectRow(cell.line.shown.section, cell.line.shown.row);
        }

        anchors.fill: parent
        enabled: !cell.line.deleteShown
        onClicked: choose()
    }
    Column {
        id: content

        x: card.x + Tokens.gap
        y: cell.tight ? time.y + time.height : Math.max(cell.pad, (card.height - height) / 2)
        width: done.x - x - (bell.visible ? bell.width + Tokens.half : 0)
        spacing: Tokens.half

        Label {
            width: parent.width
            visible: cell.next
            text: cell.plan.next
            color: Tokens.colors.accentText
            font.pixelSize: Tokens.textCaption
            font.weight: Font.Medium
        }
        Label {
            width: parent.width
            visible: text.length > 0
            text: cell.line.shown.placeholder
            color: Tokens.colors.textDisabled
        }
        Label {
            width: parent.width
            visible: text.length > 0
            text: cell.plan.dishes
            color: cell.ink
            lineHeight: 1.1
        }
        Repeater {
            model: cell.plan.items

            Row {
                id: item

                required property var modelData

                width: content.width
                spacing: Tokens.unit

                Icon {
                    id: sign

                    name: item.modelData.image
                    size: Tokens.smallIcon
                    color: cell.line.shown.checked ? Tokens.colors.textDisabled : item.modelData.color
                }
                Label {
                    width: parent.width - sign.width - Tokens.unit
                    text: item.modelData.text
                    color: cell.ink
                    font.pixelSize: Tokens.textSmall
                }
            }
        }
        Row {
            width: parent.width
            visible: cell.plan.other.length > 0
            spacing: Tokens.unit

            Icon {
                id: otherSign

                name: "ic_other"
                size: Tokens.smallIcon
                color: cell.line.shown.checked ? Tokens.colors.textDisabled : Tokens.colors.icon
            }
            Label {
                width: parent.width - otherSign.width - Tokens.unit
                text: cell.plan.other
                color: cell.ink
                font.pixelSize: Tokens.textSmall
            }
        }
    }
    Icon {
        id: bell

        x: done.x - width
        y: done.y + (done.height - height) / 2
        visible: cell.plan.remind
        name: "ic_reminder"
        size: Tokens.smallIcon
        color: cell.line.shown.checked ? Tokens.colors.textDisabled : Tokens.colors.accentText
    }
    IconButton {
        id: done

        x: cell.width - width - Tokens.half
        y: (card.height - height) / 2
        picture: cell.line.shown.checked ? "checkmarkButton_selected" : "checkmarkButton"
        color: cell.line.shown.checked ? Tokens.colors.accent : Tokens.colors.textDisabled
        name: Texts.localized("Done") + ": " + cell.line.shown.title
        focusPolicy: Qt.NoFocus // the keys stay with the row
        Accessible.checkable: true
        Accessible.checked: cell.line.shown.checked
        onClicked: cell.line.controller.touchAccessory(cell.line.shown.section, cell.line.shown.row)
    }
    FocusRing {
        anchors.fill: card
        shown: cell.line.current
    }
}
