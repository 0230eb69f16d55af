import QtQuick
import Kesto

/*! A portion of drink and a slider for its volume; its value is a list of the volume, the largest one and the step. */
FocusScope {
    id: cell

    required property TableLine line
    readonly property bool current: line.current

    // The row's keys are the slider's: left and right change the volume, up and down go to another row.
    onCurrentChanged: if (current) slider.forceActiveFocus(Qt.TabFocusReason)

    implicitHeight: Math.max(icon.height, words.height + slider.height) + 2 * Tokens.unit
    Accessible.role: Accessible.Grouping
    Accessible.name: Texts.joined([line.shown.subtitle, line.shown.title])

    RowSurface {
        anchors.fill: parent
        first: cell.line.shown.isFirst
        last: cell.line.shown.isLast
        inset: words.x
    }
    Icon {
        id: icon

        x: Tokens.margin
        anchors.verticalCenter: parent.verticalCenter
        name: cell.line.shown.image
        size: Tokens.tilePicture
        color: Tokens.inkOf(Tokens.waterShade)
    }
    Flow {
        id: words

        x: icon.x + icon.width + Tokens.margin
        y: Tokens.unit
        width: parent.width - x - Tokens.margin
        spacing: Tokens.unit

        Label {
            width: Math.min(implicitWidth, words.width)
            text: cell.line.shown.subtitle
        }
        Label {
            text: cell.line.shown.title
            color: Tokens.colors.accentText
            font.weight: Font.Medium
            wrapMode: Text.NoWrap
        }
    }
    Slider {
        id: slider

        x: words.x
        anchors.top: words.bottom
        width: words.width
        name: Texts.joined([cell.line.shown.subtitle, cell.line.shown.title])
        to: cell.line.shown.values[1] ?? 0
        stepSize: cell.line.shown.values[2] ?? 0
        snapMode: Slider.SnapAlways
        value: cell.line.shown.values[0] ?? 0
        activeFocusOnTab: cell.line.ListView.isCurrentItem || activeFocus
        onMoved: (cell.line.controller as WaterValuesTableViewController).sliderMoved(value, cell.line.shown.row)
    }
}
