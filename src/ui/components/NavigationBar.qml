import QtQuick
import Kesto

/*! The light green bar over a screen: the way back, for which a screen's own button at the left stands in, the title, the screen's buttons. */
Rectangle {
    id: bar

    property string title
    /*! In place of the title. */
    property TitleStepper stepper: null
    property bool canGoBack: false
    property string backTitle
    property var leftItems: []
    property var rightItems: []
    readonly property real leftEnd: (back.visible ? back.width : 0) + left.width
    readonly property real side: Math.max(leftEnd, right.width) + Tokens.half
    readonly property bool centred: label.natural <= width - 2 * side

    signal backRequested

    implicitHeight: Math.max(Tokens.barHeight, label.contentHeight + Tokens.unit)
    color: Tokens.colors.bar
    Accessible.role: Accessible.ToolBar
    Accessible.name: title

    BarButton {
        id: back

        readonly property real wide: backText.implicitWidth + Tokens.icon + Tokens.wide

        visible: bar.canGoBack && bar.leftItems.length === 0
        anchors.verticalCenter: parent.verticalCenter
        width: implicitWidth
        back: true
        title: wide < bar.width / 3 && bar.width - 2 * Math.max(wide, right.width) > label.natural ? bar.backTitle : ""
        name: bar.backTitle.length > 0 ? bar.backTitle : Texts.localized("Back")
        onClicked: bar.backRequested()

        Label {
            id: backText

            visible: false
            text: bar.backTitle
            wrapMode: Text.NoWrap
        }
    }
    BarItems {
        id: left

        x: back.visible ? back.width : 0
        anchors.verticalCenter: parent.verticalCenter
        items: bar.leftItems
        widest: bar.width / 3
    }
    Label {
        id: label

        readonly property real natural: measure.implicitWidth
        readonly property int largest: Math.min(Tokens.textTitle, Tokens.textOfTitles)

        x: bar.centred ? bar.side : bar.leftEnd + Tokens.half
        width: bar.centred ? bar.width - 2 * bar.side : bar.width - bar.leftEnd - right.width - Tokens.unit
        anchors.verticalCenter: parent.verticalCenter
        visible: bar.stepper === null
        text: bar.title
        color: Tokens.colors.barTitle
        style: Text.Raised
        styleColor: Tokens.colors.barTitleShade
        // What is too long for a line goes into two, and grows smaller if it has to.
        font.pixelSize: natural <= width ? largest : Math.max(Tokens.textOfTabs, Math.min(largest, Math.floor(largest * 1.6 * width / natural)))
        font.weight: Font.Light
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        elide: Text.ElideRight
        lineHeight: 0.95
        Accessible.ignored: false
        Accessible.role: Accessible.Heading
        Accessible.name: text

        Label {
            id: measure

            visible: false
            text: bar.title
            font.pixelSize: label.largest
            font.weight: Font.Light
            wrapMode: Text.NoWrap
        }
    }
    Loader {
        x: Math.max(bar.leftEnd, Math.min((bar.width - width) / 2, bar.width - right.width - width))
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, bar.width - bar.leftEnd - right.width)
        active: bar.stepper !== null
        sourceComponent: StepperTitle { stepper: bar.stepper }
    }
    BarItems {
        id: right

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        items: bar.rightItems
        widest: bar.width / 3
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Tokens.hairline
        color: Tokens.colors.barLine
    }
}
