import QtQuick
import Kesto

/*!
    A tile of a grid: a picture or, without one, a drawing on a soft colour; words; marks in colours; a word that it is new; a
    check button. A place among the others, of which the tile leaves a little free at each side.
*/
FocusScope {
    id: tile

    property string picture
    /*! What is drawn where the picture is missing, and in what colours. */
    property string drawing
    property color shade: Tokens.colors.field
    property color ink: Tokens.colors.textDisabled
    property string title
    property string mark
    /*! The colours of marks, and a bit for each of them that is shown. */
    property var markerColors: []
    property int markers: 0
    /*! What the marks mean. */
    property string meaning
    property int lineHeight: Math.ceil(Tokens.textSmall * 1.3)
    property bool checkable: false
    property bool checked: false
    property bool current: false
    readonly property bool shot: picture.length > 0 && Pictures.exists(picture)

    /*! By a finger, a pointer or the keys. */
    signal activated
    signal checkTouched
    /*! By a finger or a pointer, before it is activated. */
    signal touched

    Accessible.role: Accessible.ListItem
    Accessible.name: Texts.joined([title, mark, meaning])
    Accessible.focusable: true
    Accessible.onPressAction: activated()

    Rectangle {
        id: card

        anchors.fill: parent
        anchors.margins: Tokens.half
        radius: Tokens.radius
        color: touch.pressed && touch.containsMouse ? Tokens.colors.pressed : Tokens.colors.surface

        MouseArea {
            id: touch

            anchors.fill: parent
            onClicked: {
                tile.touched();
                tile.activated();
            }
        }
        Rectangle {
            id: pictureBox

            x: Tokens.half
            y: x
            width: parent.width - 2 * x
            height: tile.height - 2 * Tokens.half - words.height - 3 * Tokens.half
            radius: Tokens.smallRadius
            color: tile.shade

            Icon {
                readonly property int drawn: Math.round(Math.min(parent.height * 0.45, 1.3 * Tokens.largeIcon))

                anchors.centerIn: parent
                name: tile.shot ? tile.picture : tile.drawing
                width: tile.shot ? parent.width : drawn
                height: tile.shot ? parent.height : drawn
                sourceSize.width: width
                sourceSize.height: tile.shot ? 0 : height
                fillMode: tile.shot ? Image.PreserveAspectCrop : Image.PreserveAspectFit
                color: tile.ink
            }
        }
        Item {
            id: words

            x: Tokens.unit
            anchors.top: pictureBox.bottom
            anchors.topMargin: Tokens.half
            width: parent.width - 2 * x
            height: 3 * tile.lineHeight + Tokens.gap + marks.height

            Label {
                width: parent.width
                text: tile.title
                maximumLineCount: 3
                elide: Text.ElideRight
                font.pixelSize: Tokens.textSmall
            }
            Row {
                id: marks

                anchors.bottom: parent.bottom
                height: Tokens.dot
                spacing: Tokens.half

                Repeater {
                    model: tile.markerColors

                    Rectangle {
                        required property int index
                        required property color modelData

                        visible: tile.markers & (1 << index)
                        width: Tokens.dot
                        height: Tokens.dot
                        radius: width / 2
                        color: modelData
                    }
                }
            }
        }
        Badge {
            visible: tile.mark.length > 0
            x: pictureBox.x + Tokens.half
            y: x
            filled: true
            tone: Tokens.colors.accentText
            text: tile.mark
            Accessible.ignored: true
        }
        Loader {
            anchors.right: parent.right
            active: tile.checkable
            sourceComponent: Item {
                width: check.width
                height: check.height

                Rectangle {
                    anchors.centerIn: check
                    width: Tokens.icon + Tokens.unit
                    height: width
                    radius: width / 2
                    color: Tokens.colors.surface
                }
                IconButton {
                    id: check

                    picture: tile.checked ? "checkmarkButton_selected" : "checkmarkButton"
                    color: tile.checked ? Tokens.colors.accent : Tokens.colors.tint
                    name: Texts.localized("checkmarkButton") + ": " + tile.title
                    focusPolicy: Qt.NoFocus // the keys stay with the tile
                    Accessible.checkable: true
                    Accessible.checked: tile.checked
                    onClicked: tile.checkTouched()
                }
            }
        }
        FocusRing {
            radius: Tokens.radius
            shown: tile.current
        }
    }
}
