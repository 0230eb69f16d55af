import QtQuick
import Kesto

/*! The wrist with a picture of its class. */
TextLine {
    id: cell

    Icon {
        name: cell.line.shown.value ?? ""
        size: Tokens.icon
    }
}
