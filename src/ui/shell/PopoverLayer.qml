import QtQuick
import Kesto

/*! The popovers of the screens that can be seen. */
FocusScope {
    id: over

    required property AppWindow appWindow
    /*! Where the things are looked for that popovers point at. */
    required property Item root

    Repeater {
        model: over.appWindow.popovers

        Popover {
            id: popover

            required property PopoverController modelData

            width: over.width
            height: over.height
            focus: true
            sizeHint: modelData.sizeHint
            onDismissed: modelData.dismiss()
            Component.onCompleted: {
                anchor = Anchors.find(over.root, modelData.anchor, modelData.owner);
                inner.forceActiveFocus(Qt.OtherFocusReason);
            }

            ControllerView {
                id: inner

                anchors.fill: parent
                focus: true
                controller: popover.modelData.content
            }
        }
    }
}
