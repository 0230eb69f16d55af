import QtQuick
import Kesto

/*!
    Slides what is in it to the left to bare a button that deletes. A finger or the mouse slides it, or \a open does.
    Upright movements are left to the list around it.
*/
Item {
    id: swipe

    property bool allowed: false
    property bool open: false
    default property alias content: holder.data

    signal deleteRequested
    signal opened

    clip: holder.x < 0

    onAllowedChanged: if (!allowed) open = false
    onOpenChanged: if (open) opened()

    Item {
        id: holder

        width: parent.width
        height: parent.height
    }
    // Most rows can't be deleted.
    Loader {
        anchors.fill: parent
        active: swipe.allowed
        sourceComponent: deleting
        onActiveChanged: if (!active) holder.x = 0
    }
    Component {
        id: deleting

        Item {
            id: parts

            function settle(): void {
                slide.to = swipe.open ? -button.width : 0;
                slide.restart();
            }

            Button {
                id: button

                anchors.right: parent.right
                height: parent.height
                visible: holder.x < 0
                text: Texts.localized("Delete")
                primary: true
                background: Rectangle {
                    color: Tokens.colors.destructive
                    radius: Tokens.radius

                    FocusRing { shown: button.visualFocus }
                }
                onClicked: {
                    swipe.open = false;
                    swipe.deleteRequested();
                }
                Keys.onEscapePressed: swipe.open = false
            }
            MouseArea {
                x: holder.x
                width: parent.width
                height: parent.height
                enabled: swipe.open
                visible: enabled
                onClicked: swipe.open = false
            }
            NumberAnimation {
                id: slide

                target: holder
                property: "x"
                duration: Tokens.normal
                easing.type: Easing.OutCubic
            }
            DragHandler {
                id: drag

                parent: swipe // over the content it would keep touches from it
                target: holder
                yAxis.enabled: false
                xAxis.minimum: -button.width
                xAxis.maximum: 0
                onActiveChanged: {
                    if (active) {
                        slide.stop();
                        return;
                    }
                    const wanted = holder.x < -button.width / 2;
                    if (wanted === swipe.open)
                        parts.settle();
                    else
                        swipe.open = wanted;
                }
            }
            Connections {
                target: swipe
                function onOpenChanged() {
                    parts.settle();
                }
            }
        }
    }
}
