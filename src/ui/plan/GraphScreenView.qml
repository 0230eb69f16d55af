import QtQuick
import Kesto

/*! The graph of the recorded weights, what it tells in figures, and what can be shown instead. */
FocusScope {
    id: view

    required property GraphViewController controller
    readonly property bool wide: width > 700
    readonly property real inset: wide ? Tokens.wide : Tokens.margin
    readonly property bool hasGraph: controller.errorText.length === 0

    Background { anchors.fill: parent }
    ScopeBar {
        id: ranges

        width: parent.width
        titles: view.controller.rangeTitles
        current: view.controller.selectedRange
        name: Texts.localized("Период")
        onChosen: index => view.controller.selectedRange = index
    }
    EmptyState {
        anchors.centerIn: page
        width: Math.min(parent.width - 2 * Tokens.huge, 320)
        visible: !view.hasGraph
        picture: "5.png"
        title: view.controller.errorText
    }
    Flickable {
        id: page

        anchors.top: ranges.bottom
        anchors.bottom: measures.visible ? measures.top : parent.bottom
        width: parent.width
        visible: view.hasGraph
        clip: true
        contentHeight: content.height + 2 * Tokens.gap
        flickableDirection: Flickable.VerticalFlick
        boundsBehavior: Flickable.StopAtBounds

        ScrollBar { view: page }
        Grid {
            id: content

            readonly property real panelWidth: view.wide ? 280 : width
            readonly property real graphWidth: view.wide ? width - panelWidth - columnSpacing : width

            x: view.inset
            y: Tokens.gap
            width: view.width - 2 * x
            columns: view.wide ? 2 : 1
            columnSpacing: Tokens.wide
            rowSpacing: Tokens.gap

            RowSurface {
                width: content.graphWidth
                height: view.wide ? Math.max(360, page.height - 2 * Tokens.gap)
                    : Math.max(280, page.height - panel.height - 3 * Tokens.gap)

                Column {
                    id: head

                    x: Tokens.margin
                    y: Tokens.gap
                    width: parent.width - 2 * x

                    Label {
                        width: parent.width
                        text: view.controller.differenceText
                        font.pixelSize: Tokens.textLarge
                    }
                    Label {
                        width: parent.width
                        text: view.controller.periodText
                        color: Tokens.colors.textQuiet
                        font.pixelSize: Tokens.textSmall
                    }
                }
                GraphView {
                    id: graph

                    anchors.fill: parent
                    anchors.topMargin: head.y + head.height + Tokens.wide
                    anchors.leftMargin: Tokens.unit
                    anchors.rightMargin: Tokens.margin
                    anchors.bottomMargin: Tokens.unit
                    focus: true
                    controller: view.controller
                    lineColor: Tokens.colors.accentText
                    trendColor: Tokens.colors.text
                    idealColor: Tokens.colors.destructive
                    gridColor: Tokens.colors.separator
                    labelColor: Tokens.colors.textQuiet
                    backgroundColor: Tokens.colors.surface
                    font.family: Tokens.family
                    font.pixelSize: Tokens.textCaption
                    duration: Tokens.normal
                    Accessible.role: Accessible.Chart
                    Accessible.name: view.controller.spokenText
                    Accessible.focusable: true

                    FocusRing { shown: graph.activeFocus && Appearance.keysInUse }
                    GraphFlag {
                        visible: view.controller.selectedPoint >= 0
                        text: view.controller.flagText
                        point: graph.flagPosition
                    }
                }
            }
            Column {
                id: panel

                width: content.panelWidth
                spacing: Tokens.gap

                GraphFigures {
                    width: parent.width
                    texts: [view.controller.minText, view.controller.idealText, view.controller.maxText]
                    phases: view.controller.phases
                }
                Column {
                    width: parent.width

                    SwitchRow {
                        width: parent.width
                        title: view.controller.trendTitle
                        last: false
                        activeFocusOnTab: true
                        current: activeFocus
                        on: view.controller.trendShown
                        onTurned: on => view.controller.trendShown = on
                        Keys.onSpacePressed: activated()
                        Keys.onReturnPressed: activated()
                    }
                    ListRow {
                        width: parent.width
                        title: view.controller.tableTitle
                        first: false
                        accessory: TableRow.Disclosure
                        activeFocusOnTab: true
                        current: activeFocus
                        onActivated: view.controller.showTable()
                        Keys.onSpacePressed: activated()
                        Keys.onReturnPressed: activated()
                    }
                }
            }
        }
    }
    ScopeBar {
        id: measures

        anchors.bottom: parent.bottom
        width: parent.width
        visible: view.controller.measureTitles.length > 1
        titles: view.controller.measureTitles
        current: view.controller.selectedMeasure
        name: Texts.localized("Измерения")
        onChosen: index => view.controller.selectedMeasure = index
    }
}
