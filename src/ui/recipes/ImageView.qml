import QtQuick
import Kesto

/*!
    A picture that fits the room. Two fingers, the wheel and the keys + and − make it larger and smaller, a double tap goes
    close to a place and back.
*/
FocusScope {
    id: view

    required property ImageViewController controller
    readonly property real largest: 5
    readonly property int resolution: 2 * Math.max(width, height)
    property real zoom: 1
    property real zoomBefore: 1

    /*! Keeps the place of the page that is under a point of the view where it is. */
    function zoomTo(wanted: real, at: point): void {
        const next = Math.max(1, Math.min(largest, wanted));
        const by = next / zoom;
        const x = (page.contentX + at.x) * by - at.x;
        const y = (page.contentY + at.y) * by - at.y;
        zoom = next;
        page.contentX = Math.max(0, Math.min(page.contentWidth - page.width, x));
        page.contentY = Math.max(0, Math.min(page.contentHeight - page.height, y));
    }
    function middle(): point {
        return Qt.point(width / 2, height / 2);
    }

    Background { anchors.fill: parent }
    Flickable {
        id: page

        anchors.fill: parent
        clip: true
        focus: true
        activeFocusOnTab: true
        contentWidth: width * view.zoom
        contentHeight: height * view.zoom
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.Graphic
        Accessible.name: view.controller.title
        Keys.onPressed: event => {
            switch (event.key) {
            case Qt.Key_Plus:
            case Qt.Key_Equal: view.zoomTo(view.zoom * 1.25, view.middle()); break;
            case Qt.Key_Minus: view.zoomTo(view.zoom / 1.25, view.middle()); break;
            case Qt.Key_0: view.zoomTo(1, view.middle()); break;
            default: return;
            }
            event.accepted = true;
        }

        ScrollBar { view: page }
        ScrollBar {
            view: page
            upright: false
        }
        Image {
            id: picture

            width: page.contentWidth
            height: page.contentHeight
            source: "image://kesto/" + encodeURIComponent(view.controller.picture)
            sourceSize.width: view.resolution
            sourceSize.height: view.resolution
            fillMode: Image.PreserveAspectFit
            Accessible.ignored: true

            // Here they come before the page's own scrolling.
            PinchHandler {
                target: null
                onActiveChanged: if (active) view.zoomBefore = view.zoom
                onActiveScaleChanged: if (active) view.zoomTo(view.zoomBefore * activeScale, picture.mapToItem(page, centroid.position))
            }
            WheelHandler {
                target: null
                onWheel: event => view.zoomTo(view.zoom * Math.pow(1.2, event.angleDelta.y / 120), picture.mapToItem(page, point.position))
            }
            TapHandler {
                onDoubleTapped: view.zoomTo(view.zoom > 1 ? 1 : 2.5, picture.mapToItem(page, point.position))
            }
        }
    }
}
