import QtQuick
import Kesto

/*! A picture that can be touched; its name is for those who do not see it. */
Pressable {
    id: control

    required property string picture
    required property string name
    property color color: Tokens.colors.tint
    property int size: Tokens.icon

    implicitWidth: Math.max(Tokens.rowHeight, size + 2 * Tokens.unit)
    implicitHeight: implicitWidth
    opacity: enabled ? (down ? 0.5 : 1) : 0.4
    Accessible.name: name

    FocusRing { shown: control.visualFocus }
    Icon {
        anchors.centerIn: parent
        name: control.picture
        size: control.size
        color: control.color
    }
}
