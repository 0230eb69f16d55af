import QtQuick
import Kesto

/*! Draws one screen; when another takes its place, the first leaves with its view. */
FocusScope {
    id: swap

    property ViewController controller: null
    property ControllerView page: null
    /*! The last screen fades away, if it is to go animated. */
    property bool fades: false

    function show(): void {
        const before = page;
        const focused = activeFocus;
        page = controller ? pageComponent.createObject(swap, { controller: controller }) : null;
        if (page) {
            page.focus = true;
            if (focused)
                page.forceActiveFocus(Qt.OtherFocusReason);
        }
        if (!before)
            return;
        before.enabled = false;
        if (fades && !page && before.controller.isTransitionAnimated() && Tokens.slow > 0) {
            fade.createObject(before, { target: before });
            return;
        }
        before.visible = false;
        before.destroy();
    }

    onControllerChanged: show()

    Component {
        id: pageComponent

        ControllerView { anchors.fill: parent }
    }
    Component {
        id: fade

        OpacityAnimator {
            running: true
            from: 1
            to: 0
            duration: Tokens.slow
            onFinished: target.destroy()
        }
    }
}
