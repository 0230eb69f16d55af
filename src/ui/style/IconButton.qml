import QtQuick
import QtQuick.Templates as T
import Kesto

/*! A picture that can be touched; its name is for those who do not see it. */
T.AbstractButton {
    id: control

    required property string picture
    required property string name
    property color color: Tokens.colors.tint
    property int size: Tokens.icon

    implicitWidth: Math.max(Tokens.rowHeight, size + 2 * Tokens.unit)
    implicitHeight: implicitWidth
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? (down ? 0.5 : 1) : 0.4

    Accessible.role: Accessible.Button
    Accessible.name: name
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    contentItem: Item {
        Icon {
            anchors.centerIn: parent
            name: control.picture
            size: control.size
            color: control.color
        }
    }
    background: Item {
        FocusRing { shown: control.visualFocus }
    }
}
