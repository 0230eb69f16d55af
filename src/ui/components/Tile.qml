import QtQuick
import Kesto

/*! A tile of a grid: a picture, words, marks of phases, a check button, a mark that it is new. */
Item {
    id: tile

    property string picture
    /*! What stands where the picture is missing. */
    property string fallback: "3_recipes_icon"
    property string title
    property string mark
    property var tones: []
    property bool checkable: false
    property bool checked: false
    property bool current: false
    property string checkName

    signal activated
    signal checkTouched

    Accessible.role: Accessible.ListItem
    Accessible.name: Texts.joined([title, mark])
    Accessible.focusable: true
    Accessible.onPressAction: activated()

    Rectangle {
        anchors.fill: parent
        anchors.margins: Tokens.half
        radius: Tokens.radius
        color: touch.pressed ? Tokens.colors.pressed : Tokens.colors.surface

        MouseArea {
            id: touch

            anchors.fill: parent
            onClicked: tile.activated()
        }
        Item {
            id: pictureBox

            x: Tokens.unit
            y: Tokens.unit
            width: parent.width - 2 * x
            height: Math.round(Math.min(width * 0.62, 160))

            Icon {
                anchors.centerIn: parent
                readonly property bool shot: tile.picture.length > 0 && Pictures.exists(tile.picture)

                name: shot ? tile.picture : tile.fallback
                size: shot ? pictureBox.width : Tokens.largeIcon
                height: shot ? pictureBox.height : size
                color: Tokens.colors.textDisabled
            }
        }
        Label {
            id: label

            anchors.top: pictureBox.bottom
            anchors.topMargin: Tokens.half
            x: Tokens.unit
            width: parent.width - 2 * x
            text: tile.title
            maximumLineCount: 3
            elide: Text.ElideRight
            font.pixelSize: Tokens.textSmall
            horizontalAlignment: Text.AlignHCenter
        }
        Row {
            id: marks

            anchors.bottom: parent.bottom
            anchors.bottomMargin: Tokens.unit
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Tokens.half

            Repeater {
                model: tile.tones

                Rectangle {
                    required property color modelData

                    width: 10
                    height: 10
                    radius: 5
                    color: modelData
                }
            }
        }
        Badge {
            visible: tile.mark.length > 0
            x: Tokens.unit
            y: Tokens.unit
            filled: true
            tone: Tokens.colors.accentText
            text: tile.mark
        }
        IconButton {
            visible: tile.checkable
            anchors.right: parent.right
            picture: tile.checked ? "checkmarkButton_selected" : "checkmarkButton"
            color: tile.checked ? Tokens.colors.accent : Tokens.colors.tint
            name: tile.checkName
            activeFocusOnTab: false
            Accessible.checkable: true
            Accessible.checked: tile.checked
            onClicked: tile.checkTouched()
        }
        FocusRing {
            radius: Tokens.radius
            shown: tile.current
        }
    }
}
