import QtQuick
import Kesto

/*! The popovers of the screens that can be seen. One that opens out of another leaves that as it is. */
FocusScope {
    id: over

    required property AppWindow appWindow
    /*! Where the things are looked for that popovers point at; holds this, too. */
    required property Item root
    property var bubbles: []

    function sync(): void {
        const wanted = appWindow.popovers;
        const kept = [];
        for (const bubble of bubbles) {
            if (wanted.includes(bubble.shown)) {
                kept.push(bubble);
            } else {
                bubble.parent = null;
                bubble.destroy();
            }
        }
        const all = [];
        for (let place = 0; place < wanted.length; ++place) {
            const bubble = kept.find(each => each.shown === wanted[place]) ?? make(wanted[place]);
            bubble.z = place;
            all.push(bubble);
        }
        bubbles = all;
        if (all.length === 0)
            return;
        const top = all[all.length - 1];
        if (kept.includes(top))
            top.focus = true;
        else
            top.takeKeys();
    }
    function make(shown: PopoverController): var {
        // Before it is there: what it shows may have a thing of that name.
        const anchor = Anchors.find(root, shown.anchor, shown.owner);
        return bubbleComponent.createObject(over, { shown: shown, anchor: anchor });
    }

    Component {
        id: bubbleComponent

        Popover {
            id: bubble

            required property PopoverController shown

            function takeKeys(): void {
                inner.forceActiveFocus(Qt.OtherFocusReason);
            }

            width: over.width
            height: over.height
            focus: true
            enabled: z === over.bubbles.length - 1
            sizeHint: shown.sizeHint
            onDismissed: shown.dismiss()

            ControllerView {
                id: inner

                anchors.fill: parent
                focus: true
                controller: bubble.shown.content
            }
        }
    }
    Connections {
        target: over.appWindow
        function onPopoversChanged() {
            over.sync();
        }
    }
    Component.onCompleted: sync()
}
