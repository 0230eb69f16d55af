import QtQuick
import Kesto

/*! A button of the journal as a tile: its picture, words under it, and how often it was touched in the corner. */
Pressable {
    id: tile

    required property JornalButton button
    /*! The name is shown as well, above the title. */
    property bool named: false
    property int nameLines: 2
    property color fill: Tokens.colors.surface
    readonly property bool chosen: button.selected
    readonly property color ink: chosen ? Tokens.colors.accentInk
        : button.shade >= 0 ? Tokens.inkOf(button.shade) : Tokens.colors.icon
    readonly property color quietInk: chosen ? Tokens.colors.accentInk : Tokens.colors.textQuiet

    implicitWidth: Tokens.tileWidth
    implicitHeight: words.y + words.height + Tokens.half
    enabled: button.enabled
    Accessible.role: button.choosable ? Accessible.CheckBox : Accessible.Button
    Accessible.checkable: button.choosable
    Accessible.checked: chosen
    Accessible.name: Texts.joined([button.name, button.title.trim(), button.badge])
    Accessible.onToggleAction: if (enabled) clicked()

    Rectangle {
        anchors.fill: parent
        radius: Tokens.radius
        color: tile.chosen ? Tokens.colors.accent : tile.down ? Tokens.colors.pressed : tile.fill

        FocusRing {
            radius: parent.radius
            shown: tile.visualFocus
        }
    }
    Rectangle {
        id: ground

        x: Tokens.half
        y: Tokens.half
        width: parent.width - 2 * x
        height: Tokens.tilePicture + Tokens.unit
        radius: Tokens.smallRadius
        color: tile.button.shade >= 0 ? Tokens.shadeOf(tile.button.shade) : "transparent"

        Icon {
            anchors.centerIn: parent
            name: tile.button.image
            size: Tokens.tilePicture
            color: tile.ink
            scale: tile.down ? 0.9 : 1
        }
    }
    Column {
        id: words

        x: Tokens.half
        anchors.top: ground.bottom
        anchors.topMargin: 2
        width: parent.width - 2 * x

        Label {
            width: parent.width
            height: tile.nameLines * Math.ceil(font.pixelSize * 1.2)
            visible: tile.named
            text: tile.button.name
            color: tile.chosen ? Tokens.colors.accentInk : Tokens.colors.text
            font.pixelSize: Tokens.textCaption
            // Words stay whole: long ones get smaller.
            wrapMode: Text.WordWrap
            fontSizeMode: Text.Fit
            lineHeight: 0.9
            maximumLineCount: tile.nameLines
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
        Label {
            width: parent.width
            visible: text.length > 0
            text: tile.button.title
            color: tile.named ? tile.quietInk : tile.chosen ? Tokens.colors.accentInk : Tokens.colors.text
            font.pixelSize: tile.named ? Tokens.textCaption : Tokens.textSmall
            horizontalAlignment: Text.AlignHCenter
        }
    }
    Loader {
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: -2
        active: tile.button.badge.length > 0
        sourceComponent: Rectangle {
            id: badge

            width: Math.max(height, count.implicitWidth + Tokens.gap)
            height: count.implicitHeight + Tokens.half
            radius: height / 2
            color: Tokens.colors.accent

            Label {
                id: count

                anchors.centerIn: parent
                text: tile.button.badge
                color: Tokens.colors.accentInk
                font.pixelSize: Tokens.textCaption
                font.weight: Font.Bold
                wrapMode: Text.NoWrap
                onTextChanged: if (Tokens.quick > 0) pop.restart()
            }
            NumberAnimation {
                id: pop

                target: badge
                property: "scale"
                from: 1.4
                to: 1
                duration: Tokens.normal
                easing.type: Easing.OutBack
            }
        }
    }
}
