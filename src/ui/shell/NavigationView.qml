import QtQuick
import Kesto

/*!
    A stack of screens under one bar. Mirrors its controller: what is pushed comes from the right, what is popped leaves to
    the right, and a screen below the top keeps its place in its lists.
*/
FocusScope {
    id: view

    required property NavigationController controller
    readonly property ViewController topController: controller.topViewController
    property var pages: []
    property var leaving: []
    property var shown: null

    function pageOf(wanted: ViewController): var {
        for (const page of pages) {
            if (page.controller === wanted)
                return page;
        }
        return null;
    }
    function sync(): void {
        finish();
        const wanted = controller.viewControllers;
        const kept = [];
        const before = shown;
        let pushed = false;
        for (const page of pages) {
            if (wanted.includes(page.controller))
                kept.push(page);
            else
                leaving.push(page);
        }
        pages = kept;
        if (wanted.length > 0) {
            const next = wanted[wanted.length - 1];
            let page = pageOf(next);
            if (!page) {
                page = pageComponent.createObject(stage, { controller: next });
                pages.push(page);
                pushed = true;
            }
            shown = page;
        } else {
            shown = null;
        }
        if (shown === before) {
            clear();
            return;
        }
        if (shown) {
            shown.visible = true;
            shown.x = 0;
            shown.focus = true;
        }
        if (before && shown && controller.isTransitionAnimated() && Tokens.slow > 0) {
            // What is on top while both move: the new one when it comes, the old one when it leaves.
            shown.z = pushed ? 1 : 0;
            before.z = pushed ? 0 : 1;
            slide.incoming = shown;
            slide.outgoing = before;
            comes.from = pushed ? stage.width : -stage.width * 0.3;
            goes.to = pushed ? -stage.width * 0.3 : stage.width;
            slide.start();
        } else {
            if (before)
                before.visible = false;
            clear();
        }
    }
    function finish(): void {
        if (slide.running)
            slide.complete();
    }
    function clear(): void {
        for (const page of leaving)
            page.destroy();
        leaving = [];
    }

    Background { anchors.fill: parent }
    Item {
        id: stage

        anchors.top: bar.bottom
        anchors.bottom: tools.top
        width: parent.width
        clip: slide.running

        // The second touch of two quick ones is for neither screen.
        MouseArea {
            anchors.fill: parent
            z: 2
            visible: slide.running
            onWheel: {}
        }
    }
    NavigationBar {
        id: bar

        width: parent.width
        title: view.topController ? view.topController.title : ""
        stepper: view.topController?.titleStepper ?? null
        canGoBack: view.controller.canGoBack
        backTitle: view.controller.backButtonTitle
        leftItems: view.topController ? view.topController.leftBarButtonItems : []
        rightItems: view.topController ? view.topController.rightBarButtonItems : []
        onBackRequested: view.controller.popViewController(true)
    }
    ToolBar {
        id: tools

        anchors.bottom: parent.bottom
        width: parent.width
        items: view.topController ? view.topController.toolbarItems : []
    }
    ParallelAnimation {
        id: slide

        property ControllerView incoming: null
        property ControllerView outgoing: null

        onFinished: {
            incoming.x = 0;
            outgoing.visible = false;
            view.clear();
        }

        NumberAnimation {
            id: comes

            target: slide.incoming
            property: "x"
            to: 0
            duration: Tokens.slow
            easing.type: Easing.OutCubic
        }
        NumberAnimation {
            id: goes

            target: slide.outgoing
            property: "x"
            from: 0
            duration: Tokens.slow
            easing.type: Easing.OutCubic
        }
    }
    Component {
        id: pageComponent

        ControllerView {
            width: parent ? parent.width : 0
            height: parent ? parent.height : 0
        }
    }
    Connections {
        target: view.controller
        function onViewControllersChanged() {
            view.sync();
        }
    }
    Component.onCompleted: sync()
}
