import QtQuick
import Kesto

/*!
    The phases of the diet as a bar in their colours over their dates. The lengths go by the square root of the days, so
    that a short phase beside a long one is still seen.
*/
Item {
    id: cell

    required property TableLine line
    readonly property var spans: line.shown.values
    readonly property real weights: spans.reduce((sum, span) => sum + weightOf(span), 0)

    function weightOf(span: var): real {
        return Math.sqrt(span.days > 0 ? span.days : 40);
    }

    implicitHeight: column.height + 2 * Tokens.gap
    Accessible.role: Accessible.StaticText
    Accessible.name: line.shown.title + ", " + spans.map(span => span.name + " " + span.dates).join(", ")

    RowSurface {
        anchors.fill: parent
        first: cell.line.shown.isFirst
        last: cell.line.shown.isLast
    }
    Column {
        id: column

        x: Tokens.margin
        y: Tokens.gap
        width: parent.width - 2 * Tokens.margin
        spacing: Tokens.unit

        Label {
            width: parent.width
            text: cell.line.shown.title
            color: Tokens.colors.textQuiet
            font.pixelSize: Tokens.textSmall
        }
        Row {
            id: bar

            width: parent.width
            height: Tokens.margin
            spacing: 2

            Repeater {
                model: cell.spans

                Rectangle {
                    required property var modelData

                    width: (bar.width - (cell.spans.length - 1) * bar.spacing) * cell.weightOf(modelData) / cell.weights
                    height: bar.height
                    radius: Tokens.half
                    color: modelData.color
                }
            }
        }
        Grid {
            id: legend

            width: parent.width
            columns: width > 300 ? 2 : 1
            columnSpacing: Tokens.gap
            rowSpacing: Tokens.unit

            Repeater {
                model: cell.spans

                Row {
                    id: entry

                    required property var modelData

                    width: (legend.width - (legend.columns - 1) * legend.columnSpacing) / legend.columns
                    spacing: Tokens.unit

                    Rectangle {
                        y: Tokens.half
                        width: Tokens.dot
                        height: Tokens.dot
                        radius: width / 2
                        color: entry.modelData.color
                    }
                    Column {
                        width: parent.width - Tokens.dot - Tokens.unit

                        Label {
                            width: parent.width
                            text: entry.modelData.name
                            font.pixelSize: Tokens.textSmall
                        }
                        Label {
                            width: parent.width
                            text: entry.modelData.dates
                            color: Tokens.colors.textQuiet
                            font.pixelSize: Tokens.textCaption
                        }
                    }
                }
            }
        }
    }
}
