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

    function settle(): void {
        holder.x = open ? -button.width : 0;
    }

    clip: holder.x < 0

    onAllowedChanged: if (!allowed) open = false
    onOpenChanged: {
        settle();
        if (open)
            opened();
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
    Item {
        id: holder

        width: parent.width
        height: parent.height

        Behavior on x {
            enabled: !drag.active
            NumberAnimation { duration: Tokens.normal; easing.type: Easing.OutCubic }
        }
    }
    MouseArea {
        x: holder.x
        width: parent.width
        height: parent.height
        enabled: swipe.open
        visible: enabled
        onClicked: swipe.open = false
    }
    DragHandler {
        id: drag

        target: holder
        enabled: swipe.allowed
        yAxis.enabled: false
        xAxis.minimum: -button.width
        xAxis.maximum: 0
        onActiveChanged: {
            if (active)
                return;
            const wanted = holder.x < -button.width / 2;
            if (wanted === swipe.open)
                swipe.settle();
            else
                swipe.open = wanted;
        }
    }
}
