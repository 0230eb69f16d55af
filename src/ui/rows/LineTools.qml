import QtQuick
import Kesto

/*!
    What edits a row: at the left the sign that bares the button that deletes, at the right the handle that moves the row.
    A finger or the mouse bares the button, too; upright movements are left to the list around it.
*/
Item {
    id: tools

    required property TableLine line

    Binding {
        target: tools.line
        property: "before"
        value: minus.active ? minus.width : 0
    }
    Binding {
        target: tools.line
        property: "after"
        value: handle.active ? handle.width : 0
    }
    Loader {
        id: minus

        x: tools.line.table.inset
        y: tools.line.room.y + (tools.line.room.height - height) / 2
        active: tools.line.editing && tools.line.shown.canDelete
        sourceComponent: IconButton {
            picture: "minus_circle"
            color: Tokens.colors.destructive
            name: Texts.localized("Delete") + " " + tools.line.shown.title
            activeFocusOnTab: false
            onClicked: tools.line.deleteShown = !tools.line.deleteShown
        }
    }
    Loader {
        x: tools.line.room.x
        y: tools.line.room.y
        width: tools.line.room.width
        height: tools.line.room.height
        clip: tools.line.sliding.x < 0
        active: tools.line.shown.canDelete
        sourceComponent: deleting
        onActiveChanged: if (!active) tools.line.sliding.x = 0
    }
    Loader {
        id: handle

        anchors.right: parent.right
        anchors.rightMargin: tools.line.table.inset
        y: tools.line.room.y + (tools.line.room.height - height) / 2
        active: tools.line.editing && tools.line.shown.canMove
        sourceComponent: ReorderHandle {
            name: tools.line.shown.title
            onLifted: tools.line.table.lifted(tools.line)
            onCarried: by => tools.line.table.carried(tools.line, by)
            onDropped: tools.line.table.dropped(tools.line)
            onStepped: by => tools.line.table.stepped(tools.line, by)
        }
    }
    Component {
        id: deleting

        Item {
            id: parts

            readonly property TableLine line: tools.line

            function settle(): void {
                slide.to = line.deleteShown ? -button.width : 0;
                slide.restart();
            }

            Button {
                id: button

                anchors.right: parent.right
                height: parent.height
                visible: parts.line.sliding.x < 0
                text: Texts.localized("Delete")
                primary: true
                fill: Tokens.colors.destructive
                radius: Tokens.radius
                onClicked: {
                    parts.line.deleteShown = false;
                    parts.line.remove();
                }
                Keys.onEscapePressed: parts.line.deleteShown = false
            }
            MouseArea {
                x: parts.line.sliding.x
                width: parent.width
                height: parent.height
                enabled: parts.line.deleteShown
                visible: enabled
                onClicked: parts.line.deleteShown = false
            }
            NumberAnimation {
                id: slide

                target: parts.line.sliding
                property: "x"
                duration: Tokens.normal
                easing.type: Easing.OutCubic
            }
            DragHandler {
                id: drag

                parent: parts.line.room // over the content it would keep touches from it
                target: parts.line.sliding
                yAxis.enabled: false
                xAxis.minimum: -button.width
                xAxis.maximum: 0
                onActiveChanged: {
                    if (active) {
                        slide.stop();
                        return;
                    }
                    const wanted = parts.line.sliding.x < -button.width / 2;
                    if (wanted === parts.line.deleteShown)
                        parts.settle();
                    else
                        parts.line.deleteShown = wanted;
                }
            }
            Connections {
                target: parts.line
                function onDeleteShownChanged() {
                    parts.settle();
                }
            }
        }
    }
}
