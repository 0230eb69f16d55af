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

    readonly property bool endTouchable: accessory === TableRow.CheckButton || accessory === TableRow.InfoButton
    readonly property Component endComponent: accessory === TableRow.None ? null : endTouchable ? touchable : sign
    readonly property bool hasMore: subtitle.length > 0 || badges.length > 0

    // Most rows are without most of these: each is made when there is something for it to show.
    property Label detailLabel: null
    property Column more: null
    property Item end: null
    property Item pictureFrame: null
    property Item ring: null

    // From the picture to the end, the title at the left and the trailing things at the right; the latter below if need be.
    readonly property real contentX: Tokens.margin + (icon.visible ? icon.width + Tokens.gap : 0)
    readonly property real contentWidth: (end ? end.x - (endTouchable ? 0 : Tokens.unit) : width - Tokens.margin) - contentX
    // A label's own width without a break depends on how it is broken.
    readonly property real detailWidth: detail.length > 0 ? Math.ceil(Tokens.bodyMetrics.advanceWidth(detail)) : 0
    readonly property real trailingWidth: slot.width + (detailLabel ? detailWidth + (slot.width > 0 ? Tokens.unit : 0) : 0)
    readonly property real trailingHeight: detailLabel ? Math.max(detailLabel.height, slot.height) : slot.height
    readonly property real room: trailingWidth > 0 ? contentWidth - trailingWidth - Tokens.gap : contentWidth
    readonly property bool stacked: trailingWidth > 0 && Tokens.bodyMetrics.advanceWidth(title) > room
    readonly property real textsHeight: (titleLabel.visible ? titleLabel.height : 0) + (more ? more.height + (titleLabel.visible ? more.spacing : 0) : 0)
    readonly property real contentHeight: stacked ? textsHeight + Tokens.half + trailingHeight : Math.max(textsHeight, trailingHeight)
    readonly property real contentY: (height - contentHeight) / 2
    readonly property real textsY: stacked ? contentY : (height - textsHeight) / 2
    readonly property real trailingY: (stacked ? contentY + textsHeight + Tokens.half : (height - trailingHeight) / 2) + trailingHeight / 2

    signal activated
    signal accessoryTouched

    /*! The part, made or ended as it is needed or not. */
    function part(present: Item, needed: bool, component: Component): Item {
        if (needed === (present !== null))
            return present;
        if (!needed) {
            present.destroy();
            return null;
        }
        return component.createObject(row) as Item;
    }

    onEndComponentChanged: {
        end = part(end, false, null);
        end = part(end, endComponent !== null, endComponent);
    }
    onDetailChanged: detailLabel = part(detailLabel, detail.length > 0, details) as Label
    onHasMoreChanged: more = part(more, hasMore, below) as Column
    onFramedChanged: pictureFrame = part(pictureFrame, framed, frame)
    onCurrentChanged: ring = part(ring, current, focusRing)

    implicitWidth: Tokens.narrowest
    implicitHeight: Math.max(Tokens.rowHeight, contentHeight + 2 * Tokens.unit, icon.visible ? icon.height + 2 * Tokens.unit : 0)

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
        inset: row.contentX
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
        y: (row.height - height) / 2
        visible: row.picture.length > 0
        name: row.picture
        size: row.pictureSize
        color: !row.available ? Tokens.colors.textDisabled : row.destructive ? Tokens.colors.destructive : Tokens.colors.icon
    }
    Label {
        id: titleLabel

        x: row.contentX
        y: row.textsY
        width: row.stacked ? row.contentWidth : row.room
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
    Row {
        id: slot

        x: row.contentX + row.contentWidth - width
        y: row.trailingY - height / 2
    }
    Component {
        id: details

        Label {
            x: row.contentX + row.contentWidth - width - (slot.width > 0 ? slot.width + Tokens.unit : 0)
            y: row.trailingY - height / 2
            width: Math.min(row.detailWidth, row.contentWidth)
            text: row.detail
            color: row.quiet
            font.strikeout: row.struckThrough
            horizontalAlignment: Text.AlignRight
        }
    }
    Component {
        id: below

        Column {
            x: titleLabel.x
            y: row.textsY + row.textsHeight - height
            width: titleLabel.width
            spacing: 2

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

                        width: Math.min(implicitWidth, titleLabel.width)
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
            x: row.width - width - Tokens.margin
            y: (row.height - height) / 2
            opacity: row.accessory === TableRow.Checkmark && !row.marked ? 0 : 1
            name: row.accessory === TableRow.Checkmark ? "check" : "chevron_right"
            size: row.accessory === TableRow.Checkmark ? Tokens.icon : Tokens.smallIcon
            color: row.accessory === TableRow.Checkmark ? Tokens.colors.accent : Tokens.colors.textDisabled
        }
    }
    Component {
        id: touchable

        // It brings its own distance along.
        IconButton {
            x: row.width - width - Tokens.half
            y: (row.height - height) / 2
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
            anchors.fill: icon
            visible: icon.visible
            color: "transparent"
            border.width: Tokens.hairline
            border.color: Tokens.colors.photoLine
        }
    }
    Component {
        id: focusRing

        FocusRing {
            anchors.margins: 2
            shown: true
        }
    }
}
