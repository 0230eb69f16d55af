import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Kesto

/*! A button of a bar: a picture or a title. */
T.AbstractButton {
    id: control

    property string picture
    property string title
    property string name: title
    property bool back: false
    property color ink: Tokens.colors.barButton

    implicitWidth: Math.max(Tokens.rowHeight, contentItem.implicitWidth + 2 * Tokens.unit)
    implicitHeight: Math.max(Tokens.rowHeight, contentItem.implicitHeight)
    leftPadding: Tokens.unit
    rightPadding: Tokens.unit
    focusPolicy: Qt.StrongFocus
    opacity: !enabled ? 0.45 : down ? 0.5 : 1

    Accessible.role: Accessible.Button
    Accessible.name: name
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    contentItem: RowLayout {
        spacing: 2

        Icon {
            Layout.alignment: Qt.AlignCenter
            visible: control.back || control.picture.length > 0
            name: control.back ? "chevron_left" : control.picture
            color: control.ink
        }
        Label {
            Layout.fillWidth: true
            visible: text.length > 0
            text: control.title
            color: control.ink
            font.pixelSize: Math.min(Tokens.textBody, Tokens.textOfBars)
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 12
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
        }
    }
    background: Item {
        FocusRing {
            anchors.margins: 2
            shown: control.visualFocus
        }
    }
}
