import QtQuick
import Kesto

/*! The buttons of a screen, side by side. Each is the anchor of its own popover: "bar/" and its picture or title. */
Row {
    id: row

    required property var items
    property int widest: 160

    Repeater {
        model: row.items

        BarButton {
            required property BarButtonItem modelData

            objectName: "bar/" + (modelData.image.length > 0 ? modelData.image.split(".")[0] : modelData.title)
            width: Math.min(implicitWidth, row.widest)
            picture: modelData.image
            pressedPicture: modelData.highlightedImage
            title: modelData.image.length > 0 ? "" : modelData.title
            name: modelData.accessibleName
            enabled: modelData.enabled
            visible: modelData.visible
            onClicked: modelData.trigger()
        }
    }
}
