import QtQuick
import Kesto

/*! The protein of the day, which stays in sight, the foods that make it up, and what was eaten. */
FocusScope {
    id: view

    required property FoodBalanceRootViewController controller
    readonly property bool wide: width > 2 * Tokens.popoverWidth
    /*! Where there is little room, the head scrolls with the rest. */
    readonly property bool fixedHead: height > 3 * head.height

    Background { anchors.fill: parent }
    Rectangle {
        id: head

        readonly property real inset: view.fixedHead ? 0 : page.inset

        parent: view.fixedHead ? view : scrolledHead
        x: inset
        z: 1
        width: (parent ? parent.width : 0) - 2 * x
        height: headColumn.height + 2 * Tokens.gap
        radius: view.fixedHead ? 0 : Tokens.radius
        color: Tokens.colors.surface

        Column {
            id: headColumn

            x: view.fixedHead ? page.inset : Tokens.margin
            y: Tokens.gap
            width: parent.width - 2 * x
            spacing: Tokens.unit

            BalanceText {
                width: parent.width
                current: view.controller.currentText
                norm: view.controller.normalText
            }
            BalanceBar {
                width: parent.width
                share: view.controller.progress
                name: view.controller.progressText
            }
            TileField {
                width: parent.width
                inRow: 4
                named: true
                nameLines: 3
                fill: Tokens.colors.field
                buttons: view.controller.activityButtons
                name: Texts.localized("Activity level")
                onTouched: tag => view.controller.actionButtonTouched(tag)
            }
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: Tokens.hairline
            visible: view.fixedHead
            color: Tokens.colors.separator
        }
    }
    BalancePage {
        id: page

        objectName: "foods"
        y: view.fixedHead ? head.height : 0
        width: view.wide ? Math.round(view.width * 0.6) : view.width
        height: view.height - y
        focus: true

        Item {
            id: scrolledHead

            width: page.width
            height: view.fixedHead ? 0 : head.height
            visible: !view.fixedHead
        }
        TileField {
            x: page.inset
            width: page.width - 2 * x
            focus: true
            named: true
            buttons: view.controller.meatButtons
            name: view.controller.title
            onTouched: tag => view.controller.meatButtonTouched(tag)
        }
        Label {
            x: page.inset
            width: page.width - 2 * x
            text: view.controller.footnote
            color: Tokens.colors.textQuiet
            font.pixelSize: Tokens.textSmall
            Accessible.ignored: false
            Accessible.role: Accessible.StaticText
            Accessible.name: text
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
        y: page.y
        width: view.width - x
        height: page.height
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
