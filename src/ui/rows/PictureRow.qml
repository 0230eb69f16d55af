import QtQuick
import Kesto

/*! A large picture over a caption. */
FocusScope {
    id: row

    property string picture
    property string title
    property string subtitle
    property bool first: true
    property bool last: true
    property bool selectable: true
    property bool available: true
    property bool current: false

    signal activated

    implicitHeight: column.height + 2 * Tokens.margin
    Accessible.role: Accessible.Graphic
    Accessible.name: Texts.joined([title, subtitle])
    Accessible.onPressAction: if (available && selectable) activated()

    RowSurface {
        anchors.fill: parent
        first: row.first
        last: row.last
        color: touch.pressed ? Tokens.colors.pressed : Tokens.colors.surface
    }
    MouseArea {
        id: touch

        anchors.fill: parent
        enabled: row.available && row.selectable
        onClicked: row.activated()
    }
    Column {
        id: column

        x: Tokens.margin
        y: Tokens.margin
        width: parent.width - 2 * Tokens.margin
        spacing: Tokens.unit

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: row.picture
            size: Math.min(Tokens.pictureRowSize, parent.width)
        }
        Label {
            width: parent.width
            visible: text.length > 0
            text: row.title
            horizontalAlignment: Text.AlignHCenter
        }
        Label {
            width: parent.width
            visible: text.length > 0
            text: row.subtitle
            color: Tokens.colors.textQuiet
            font.pixelSize: Tokens.textSmall
            horizontalAlignment: Text.AlignHCenter
        }
    }
    FocusRing {
        anchors.margins: 2
        shown: row.current
    }
}
