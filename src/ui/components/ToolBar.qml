import QtQuick
import Kesto

/*! The bar under a screen with its buttons, spread evenly. It is gone without buttons. */
Rectangle {
    id: bar

    property var items: []

    implicitHeight: items.length > 0 ? Math.max(Tokens.barHeight, row.implicitHeight) : 0
    visible: items.length > 0
    color: Tokens.colors.bar
    Accessible.role: Accessible.ToolBar
    Accessible.name: Texts.localized("Toolbar")

    Rectangle {
        width: parent.width
        height: Tokens.hairline
        color: Tokens.colors.barLine
    }
    BarItems {
        id: row

        anchors.centerIn: parent
        spacing: Tokens.wide
        items: bar.items
        widest: bar.width / Math.max(1, bar.items.length)
    }
}
