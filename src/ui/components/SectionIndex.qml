import QtQuick
import Kesto

/*! The first letters of a table's headers; a finger that moves along them leads to their sections. */
Item {
    id: rail

    required property TableModel table

    signal chosen(int line)

    implicitWidth: Tokens.wide
    Accessible.ignored: true

    SectionTitles {
        id: sections

        table: rail.table
    }
    Column {
        id: letters

        anchors.centerIn: parent
        width: parent.width

        Repeater {
            model: sections.initials

            Label {
                required property string modelData

                width: parent.width
                height: Math.min(implicitHeight, rail.height / Math.max(1, sections.titles.length))
                text: modelData
                color: Tokens.colors.accentText
                font.pixelSize: Tokens.textCaption
                fontSizeMode: Text.VerticalFit
                minimumPixelSize: 7
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
    MouseArea {
        function choose(y: real): void {
            const count = sections.titles.length;
            const at = Math.floor((y - letters.y) / Math.max(1, letters.height) * count);
            if (count > 0)
                rail.chosen(sections.line(Math.max(0, Math.min(count - 1, at))));
        }

        anchors.fill: parent
        preventStealing: true
        onPressed: mouse => choose(mouse.y)
        onPositionChanged: mouse => choose(mouse.y)
    }
}
