import QtQuick
import Kesto

/*! The screens that are presented over the root: each comes from below and leaves downwards. */
FocusScope {
    id: over

    required property AppWindow appWindow
    property var pages: []
    /*! A screen covers everything below, which need not be drawn. */
    readonly property bool covering: pages.length > 0 && pages[pages.length - 1].y === 0

    function sync(): void {
        const wanted = appWindow.presentedViewControllers;
        const kept = [];
        for (const page of pages) {
            if (wanted.includes(page.controller))
                kept.push(page);
            else
                page.leave(page.controller.isTransitionAnimated());
        }
        for (const each of wanted) {
            if (kept.some(page => page.controller === each))
                continue;
            const page = pageComponent.createObject(over, { controller: each, z: kept.length });
            kept.push(page);
            page.come(each.isTransitionAnimated());
        }
        pages = kept;
        if (kept.length > 0)
            kept[kept.length - 1].focus = true;
    }

    Component {
        id: pageComponent

        ControllerView {
            id: page

            property bool gone: false

            function come(animated: bool): void {
                slide.from = over.height;
                slide.to = 0;
                start(animated);
            }
            function leave(animated: bool): void {
                gone = true;
                enabled = false;
                slide.from = 0;
                slide.to = over.height;
                start(animated);
            }
            function start(animated: bool): void {
                y = slide.from;
                slide.restart();
                if (!animated || Tokens.slow === 0)
                    slide.complete();
            }

            width: over.width
            height: over.height

            Background {
                anchors.fill: parent
                z: -1
            }
            MouseArea {
                anchors.fill: parent
                z: -1
                onWheel: {}
            }
            NumberAnimation {
                id: slide

                target: page
                property: "y"
                duration: Tokens.slow
                easing.type: Easing.OutCubic
                onFinished: {
                    if (page.gone)
                        page.destroy();
                }
            }
        }
    }
    Connections {
        target: over.appWindow
        function onPresentedViewControllersChanged() {
            over.sync();
        }
    }
    Component.onCompleted: sync()
}
