import QtQuick
import Kesto

/*! Draws one screen; when another takes its place, the first leaves with its view. */
FocusScope {
    id: swap

    property ViewController controller: null
    property ControllerView page: null

    function show(): void {
        const before = page;
        const focused = activeFocus;
        page = controller ? pageComponent.createObject(swap, { controller: controller }) : null;
        if (page) {
            page.focus = true;
            if (focused)
                page.forceActiveFocus(Qt.OtherFocusReason);
        }
        if (before) {
            before.visible = false;
            before.destroy();
        }
    }

    onControllerChanged: show()

    Component {
        id: pageComponent

        ControllerView { anchors.fill: parent }
    }
}
