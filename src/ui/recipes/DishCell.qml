import QtQuick
import Kesto

/*! A dish in a list: its small photo, if it has one, its name, and that it is new. */
TextLine {
    id: cell

    readonly property string mark: line.shown.value ?? ""

    pictureSize: Tokens.largeIcon
    framed: true
    name: Texts.joined([line.shown.title, mark])

    Badge {
        visible: cell.mark.length > 0
        filled: true
        tone: Tokens.colors.accentText
        text: cell.mark
        Accessible.ignored: true
    }
}
