import QtQuick
import Kesto

/*! The photo of a dish, to be touched; without one a quiet strip with the sign of its category. */
Item {
    id: head

    property string photo
    property string icon
    property string name

    signal touched

    implicitHeight: photo.length > 0 ? Math.min(width * 0.62, 360) + Tokens.unit : icon.length > 0 ? 2 * Tokens.largeIcon : Tokens.half

    RowSurface {
        anchors.fill: parent
        visible: head.photo.length === 0 && head.icon.length > 0
        last: false
        line: false
        color: Tokens.colors.pressed
    }
    Icon {
        anchors.centerIn: parent
        visible: head.photo.length === 0
        name: head.icon
        size: Tokens.largeIcon
        color: Tokens.colors.accent
    }
    Pressable {
        id: touch

        objectName: "dish/image"
        anchors.fill: parent
        anchors.margins: Tokens.unit
        anchors.bottomMargin: 0
        visible: head.photo.length > 0
        opacity: down ? 0.8 : 1
        Accessible.name: head.name
        onClicked: head.touched()

        FocusRing { shown: touch.visualFocus }
        Image {
            anchors.fill: parent
            source: head.photo.length > 0 ? "image://kesto/" + encodeURIComponent(head.photo) : ""
            fillMode: Image.PreserveAspectCrop
            Accessible.ignored: true
        }
    }
}
