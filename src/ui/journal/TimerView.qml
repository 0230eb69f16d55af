import QtQuick
import Kesto

/*! The wheels for the time, or the dial that shows what is left of it, and the two buttons. */
FocusScope {
    id: view

    required property TimerViewController controller
    /*! Side by side where there is little height. */
    readonly property bool low: height < Tokens.dialSize + 3 * Tokens.rowHeight + 4 * Tokens.margin && width > height

    Background { anchors.fill: parent }
    Flickable {
        id: page

        anchors.fill: parent
        focus: true
        contentHeight: Math.max(height, content.height + 2 * Tokens.margin)
        flickableDirection: Flickable.VerticalFlick
        boundsBehavior: Flickable.StopAtBounds

        ScrollBar { view: page }
        Grid {
            id: content

            readonly property real room: Math.min(page.width - 2 * Tokens.margin, Tokens.readableWidth)
            readonly property real side: view.low ? (room - columnSpacing) / 2 : Math.min(room, Tokens.dialSize + 2 * Tokens.wide)

            x: (page.width - width) / 2
            y: (page.contentHeight - height) / 2
            columns: view.low ? 2 : 1
            columnSpacing: Tokens.wide
            rowSpacing: Tokens.wide
            horizontalItemAlignment: Grid.AlignHCenter
            verticalItemAlignment: Grid.AlignVCenter

            Rectangle {
                width: content.side
                height: view.low ? Math.min(page.height - 2 * Tokens.margin, width) : width
                radius: Tokens.radius
                color: Tokens.colors.surface

                WheelPicker {
                    id: wheels

                    anchors.centerIn: parent
                    width: parent.width - 2 * Tokens.margin
                    visible: !view.controller.counting
                    focus: !view.controller.counting
                    visibleRows: view.low ? 3 : 5
                    name: view.controller.title
                    picker: view.controller.picker
                }
                RingGauge {
                    anchors.centerIn: parent
                    width: Math.min(parent.width, parent.height) - 2 * Tokens.margin
                    height: width
                    visible: view.controller.counting
                    level: view.controller.dial
                    thickness: Tokens.dialThickness
                    color: view.controller.paused ? Tokens.colors.textDisabled : Tokens.colors.accent
                    ground: Tokens.colors.field
                    marks: Tokens.colors.separator

                    Label {
                        anchors.centerIn: parent
                        width: parent.width - 5 * Tokens.dialThickness
                        text: view.controller.countDownText
                        color: view.controller.paused ? Tokens.colors.textQuiet : Tokens.colors.text
                        font.pixelSize: Tokens.textDial
                        font.weight: Font.Light
                        fontSizeMode: Text.HorizontalFit
                        wrapMode: Text.NoWrap
                        horizontalAlignment: Text.AlignHCenter
                        Accessible.ignored: false
                        Accessible.role: Accessible.StaticText
                        Accessible.name: text
                    }
                }
            }
            Column {
                width: content.side
                spacing: Tokens.unit

                Repeater {
                    model: view.controller.buttons

                    Button {
                        required property JornalButton modelData

                        objectName: "timer/" + modelData.tag
                        width: parent ? parent.width : 0
                        primary: modelData.selected
                        picture: modelData.image
                        text: modelData.title
                        enabled: modelData.enabled
                        onClicked: view.controller.buttonTouched(modelData.tag)

                        Rectangle {
                            anchors.fill: parent
                            z: -1
                            visible: !parent.primary
                            radius: Tokens.smallRadius
                            color: Tokens.colors.surface
                        }
                    }
                }
                Label {
                    width: parent.width
                    visible: text.length > 0
                    text: view.controller.hint
                    color: Tokens.colors.textQuiet
                    font.pixelSize: Tokens.textSmall
                    horizontalAlignment: Text.AlignHCenter
                    Accessible.ignored: false
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }
        }
    }
}
