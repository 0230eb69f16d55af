import QtQuick
import Kesto

/*!
    A row: picture, title over subtitle, detail, and at the end what its children and its accessory are. Whatever does
    not fit beside the title goes under it; nothing is cut off but a title longer than a paragraph.
*/
FocusScope {
    id: row

    property string picture
    property string title
    property string subtitle
    property string detail
    property color titleColor: Tokens.colors.text
    property int titleWeight: Font.Normal
    property bool struckThrough: false
    property bool destructive: false
    property bool centred: false
    property bool available: true
    property bool selectable: true
    property bool selected: false
    property bool marked: false
    property bool current: false
    property bool first: true
    property bool last: true
    property int pictureSize: Tokens.icon
    /*! A thin line around the picture. */
    property bool framed: false
    property int accessory: TableRow.None
    property bool checked: false
    property var badges: []
    property string accessoryName
    /*! For those who do not see the row; made of its texts unless given. */
    property string name: Texts.joined([title, subtitle, detail, Texts.words(badges)])
    property int role: checkable ? Accessible.CheckBox : Accessible.ListItem
    property bool checkable: accessory === TableRow.Checkmark
    /*! What stands at the end of the row, before the accessory. */
    default property alias trailing: slot.data
    readonly property color quiet: available ? Tokens.colors.textQuiet : Tokens.colors.textDisabled

    signal activated
    signal accessoryTouched

    implicitWidth: 320
    implicitHeight: Math.max(Tokens.rowHeight, middle.height + 2 * Tokens.unit, icon.visible ? icon.height + 2 * Tokens.unit : 0)

    Accessible.role: role
    Accessible.name: name
    Accessible.checkable: checkable
    Accessible.checked: checkable && marked
    Accessible.selected: selected
    Accessible.focusable: true
    Accessible.onPressAction: if (available && selectable) activated()

    RowSurface {
        anchors.fill: parent
        first: row.first
        last: row.last
        inset: Tokens.margin + (icon.visible ? icon.width + Tokens.gap : 0)
        color: touch.pressed && touch.containsMouse && row.selectable ? Tokens.colors.pressed
            : row.selected ? Tokens.colors.pressed : Tokens.colors.surface
    }
    MouseArea {
        id: touch

        anchors.fill: parent
        enabled: row.available && row.selectable
        onClicked: row.activated()
    }
    Icon {
        id: icon

        x: Tokens.margin
        anchors.verticalCenter: parent.verticalCenter
        visible: row.picture.length > 0
        name: row.picture
        size: row.pictureSize
        color: !row.available ? Tokens.colors.textDisabled : row.destructive ? Tokens.colors.destructive : Tokens.colors.icon

        Loader {
            anchors.fill: parent
            active: row.framed
            sourceComponent: frame
        }
    }
    Item {
        id: middle

        readonly property real room: trailing.natural > 0 ? width - trailing.natural - Tokens.gap : width
        // The label's own width without a break depends on how it is broken.
        readonly property bool stacked: trailing.natural > 0 && Tokens.bodyMetrics.advanceWidth(row.title) > room

        anchors.verticalCenter: parent.verticalCenter
        x: icon.visible ? icon.x + icon.width + Tokens.gap : Tokens.margin
        width: (end.visible ? end.x - (end.inset ? 0 : Tokens.unit) : row.width - Tokens.margin) - x
        height: stacked ? texts.height + Tokens.half + trailing.height : Math.max(texts.height, trailing.height)

        Column {
            id: texts

            y: middle.stacked ? 0 : (middle.height - height) / 2
            width: middle.stacked ? middle.width : middle.room
            spacing: 2

            Label {
                id: titleLabel

                width: parent.width
                visible: text.length > 0
                text: row.title
                color: !row.available ? Tokens.colors.textDisabled
                    : row.destructive ? Tokens.colors.destructive
                    : row.struckThrough ? Tokens.colors.textDisabled : row.titleColor
                font.strikeout: row.struckThrough
                font.weight: row.selected ? Font.Medium : row.titleWeight
                maximumLineCount: 5
                elide: Text.ElideRight
                horizontalAlignment: row.centred ? Text.AlignHCenter : Text.AlignLeft
            }
            Loader {
                width: parent.width
                visible: active
                active: row.subtitle.length > 0 || row.badges.length > 0
                sourceComponent: below
            }
        }
        Row {
            id: trailing

            readonly property real natural: slot.width + (detailLabel.visible ? detailLabel.implicitWidth + (slot.width > 0 ? spacing : 0) : 0)

            anchors.right: parent.right
            y: middle.stacked ? texts.height + Tokens.half : (middle.height - height) / 2
            spacing: Tokens.unit

            Label {
                id: detailLabel

                visible: text.length > 0
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, middle.width)
                text: row.detail
                color: row.quiet
                font.strikeout: row.struckThrough
                horizontalAlignment: Text.AlignRight
            }
            Row {
                id: slot

                anchors.verticalCenter: parent.verticalCenter
            }
        }
    }
    Loader {
        id: end

        /*! A button brings its own distance along. */
        readonly property bool inset: row.accessory === TableRow.CheckButton || row.accessory === TableRow.InfoButton

        x: row.width - width - (inset ? Tokens.half : Tokens.margin)
        anchors.verticalCenter: parent.verticalCenter
        visible: active
        active: row.accessory !== TableRow.None
        sourceComponent: inset ? touchable : sign
    }
    Component {
        id: below

        Column {
            spacing: texts.spacing

            Label {
                width: parent.width
                visible: text.length > 0
                text: row.subtitle
                color: row.quiet
                font.pixelSize: Tokens.textSmall
                font.strikeout: row.struckThrough
            }
            Flow {
                width: parent.width
                visible: row.badges.length > 0
                topPadding: Tokens.half
                spacing: Tokens.half

                Repeater {
                    model: row.badges

                    Badge {
                        required property var modelData

                        width: Math.min(implicitWidth, texts.width)
                        text: modelData.text
                        tone: modelData.color
                    }
                }
            }
        }
    }
    Component {
        id: sign

        Icon {
            opacity: row.accessory === TableRow.Checkmark && !row.marked ? 0 : 1
            name: row.accessory === TableRow.Checkmark ? "check" : "chevron_right"
            size: row.accessory === TableRow.Checkmark ? Tokens.icon : Tokens.smallIcon
            color: row.accessory === TableRow.Checkmark ? Tokens.colors.accent : Tokens.colors.textDisabled
        }
    }
    Component {
        id: touchable

        IconButton {
            enabled: row.available
            picture: row.accessory === TableRow.InfoButton ? "info_icon" : row.checked ? "checkmarkButton_selected" : "checkmarkButton"
            color: row.checked ? Tokens.colors.accent : Tokens.colors.tint
            name: row.accessoryName
            focusPolicy: Qt.NoFocus // the keys stay with the row
            Accessible.checkable: row.accessory === TableRow.CheckButton
            Accessible.checked: row.checked
            onClicked: row.accessoryTouched()
        }
    }
    Component {
        id: frame

        Rectangle {
            color: "transparent"
            border.width: Tokens.hairline
            border.color: Tokens.colors.photoLine
        }
    }
    Loader {
        anchors.fill: parent
        anchors.margins: 2
        active: row.current
        sourceComponent: FocusRing { shown: true }
    }
}
