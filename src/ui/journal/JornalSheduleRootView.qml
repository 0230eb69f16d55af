import QtQuick
import Kesto

/*! The day's rows along a line of time, under what was drunk and eaten of the norms. */
FocusScope {
    id: view

    required property JornalSheduleRootViewController controller

    Background { anchors.fill: parent }
    RowTable {
        id: table

        anchors.fill: parent
        focus: true
        controller: view.controller
        topMargin: 0
        header: FocusScope {
            width: table.width
            height: column.height + Tokens.margin + Tokens.gap

            SideSwipe { onSwiped: by => view.controller.moveDay(by) }
            Column {
                id: column

                x: table.inset
                y: Tokens.margin
                width: parent.width - 2 * x
                spacing: Tokens.gap

                Rectangle {
                    width: parent.width
                    height: balances.height
                    radius: Tokens.radius
                    color: Tokens.colors.surface

                    Grid {
                        id: balances

                        readonly property real share: columns === 2 ? width / 2 : width

                        width: parent.width
                        columns: width < Tokens.dialogWidth * Tokens.textScale ? 1 : 2

                        BalanceSummary {
                            width: balances.share
                            text: view.controller.waterText
                            share: view.controller.waterFraction
                            picture: "button_water"
                            tone: Tokens.colors.water
                            onClicked: view.controller.openWater()
                        }
                        BalanceSummary {
                            width: balances.share
                            text: view.controller.proteinText
                            share: view.controller.proteinFraction
                            picture: "button_protein"
                            tone: Tokens.colors.accent
                            onClicked: view.controller.openProtein()
                        }
                    }
                }
                Button {
                    width: parent.width
                    visible: text.length > 0
                    text: view.controller.autoFillTitle
                    picture: "autofilling_day_icon"
                    primary: true
                    radius: Tokens.radius
                    onClicked: view.controller.autoFillDay()
                }
            }
        }
    }
}
