import QtQuick
import Kesto

/*! The figures beside a graph, and the phases that its bands stand for. */
RowSurface {
    id: figures

    property list<string> texts
    property var phases: []

    height: content.height + 2 * Tokens.gap

    Column {
        id: content

        x: Tokens.margin
        y: Tokens.gap
        width: parent.width - 2 * x
        spacing: Tokens.half

        Repeater {
            model: figures.texts

            Label {
                required property string modelData

                width: content.width
                visible: modelData.length > 0
                text: modelData
                Accessible.ignored: false
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        Flow {
            width: parent.width
            spacing: Tokens.gap
            topPadding: Tokens.half

            Repeater {
                model: figures.phases

                Row {
                    required property var modelData

                    spacing: Tokens.half

                    Rectangle {
                        anchors.verticalCenter: parent.verticalCenter
                        width: Tokens.dot
                        height: width
                        radius: width / 2
                        color: parent.modelData.color
                    }
                    Label {
                        text: parent.modelData.name
                        color: Tokens.colors.textQuiet
                        font.pixelSize: Tokens.textSmall
                        Accessible.ignored: false
                        Accessible.role: Accessible.StaticText
                        Accessible.name: text
                    }
                }
            }
        }
    }
}
