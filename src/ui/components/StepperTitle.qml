import QtQuick
import Kesto

/*! A bar's title between two buttons; a swipe over it leads the same ways. */
Item {
    id: control

    required property TitleStepper stepper

    implicitWidth: previous.width + next.width + measure.implicitWidth + Tokens.unit
    implicitHeight: Math.max(Tokens.rowHeight, label.contentHeight)

    SideSwipe { onSwiped: by => (by < 0 ? control.stepper.previous : control.stepper.next).trigger() }
    BarButton {
        id: previous

        width: Tokens.rowHeight
        anchors.verticalCenter: parent.verticalCenter
        picture: control.stepper.previous.image
        name: control.stepper.previous.accessibleName
        ink: Tokens.colors.barTitle
        onClicked: control.stepper.previous.trigger()
    }
    Label {
        id: label

        x: previous.width
        width: control.width - previous.width - next.width
        anchors.verticalCenter: parent.verticalCenter
        text: control.stepper.text
        color: Tokens.colors.barTitle
        style: Text.Raised
        styleColor: Tokens.colors.barTitleShade
        font.pixelSize: Math.min(Tokens.textTitle, Tokens.textOfTitles)
        font.weight: Font.Light
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Tokens.smallestText
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.NoWrap
        Accessible.ignored: false
        Accessible.role: Accessible.Heading
        Accessible.name: text

        Label {
            id: measure

            visible: false
            text: label.text
            font.pixelSize: label.font.pixelSize
            font.weight: label.font.weight
            wrapMode: Text.NoWrap
        }
    }
    BarButton {
        id: next

        anchors.right: parent.right
        width: Tokens.rowHeight
        anchors.verticalCenter: parent.verticalCenter
        picture: control.stepper.next.image
        name: control.stepper.next.accessibleName
        ink: Tokens.colors.barTitle
        onClicked: control.stepper.next.trigger()
    }
}
