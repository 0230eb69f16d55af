import QtQuick
import Kesto

/*! The drop of the day, the portions that fill it, and what was drunk; side by side where there is room. */
FocusScope {
    id: view

    required property WaterBalanceRootViewController controller
    readonly property bool wide: width > 2 * Tokens.popoverWidth

    Background { anchors.fill: parent }
    BalancePage {
        id: page

        width: view.wide ? Math.round(view.width * 0.55) : view.width
        height: view.height
        focus: true

        Rectangle {
            x: page.inset
            width: page.width - 2 * x
            height: card.height + 2 * card.y
            radius: Tokens.radius
            color: Tokens.colors.surface

            Column {
                id: card

                x: Tokens.margin
                y: Tokens.margin
                width: parent.width - 2 * x
                spacing: Tokens.gap

                Row {
                    id: top

                    width: parent.width
                    spacing: Tokens.margin

                    DropGauge {
                        id: drop

                        width: Math.min(Tokens.dropWidth, Math.round(top.width * 0.38))
                        height: Math.round(width * 1.25)
                        anchors.verticalCenter: parent.verticalCenter
                        level: view.controller.progress
                        water: Tokens.colors.water
                        ground: Tokens.shadeOf(Tokens.waterShade)

                        Behavior on level { NumberAnimation { duration: Tokens.slow; easing.type: Easing.OutCubic } }
                    }
                    Column {
                        width: top.width - drop.width - top.spacing
                        anchors.verticalCenter: parent.verticalCenter
                        spacing: Tokens.half

                        Repeater {
                            model: view.controller.actionButtons

                            ActionChip {
                                required property JornalButton modelData

                                objectName: "water/action/" + modelData.tag
                                width: parent ? parent.width : 0
                                button: modelData
                                onClicked: view.controller.actionButtonTouched(modelData.tag)
                            }
                        }
                    }
                }
                BalanceText {
                    width: parent.width
                    centred: true
                    current: view.controller.currentText
                    norm: view.controller.normalText
                }
            }
        }
        PortionPicker {
            x: page.inset
            width: page.width - 2 * x
            focus: true
            picker: view.controller.picker
            name: view.controller.title
        }
        Item {
            id: below

            width: page.width
            height: view.wide ? 0 : rows.height
        }
    }
    BalancePage {
        id: aside

        x: page.width
        width: view.width - x
        height: view.height
        visible: view.wide

        Item {
            id: beside

            width: aside.width
            height: view.wide ? rows.height : 0
        }
    }
    IntakeRows {
        id: rows

        parent: view.wide ? beside : below
        width: parent ? parent.width : 0
        balance: view.controller
    }
}
