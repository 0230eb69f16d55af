import QtQuick
import Kesto

/*! The header or the footer of a section. */
SectionHeader {
    required property TableLine line

    text: line.title
    footer: line.type === TableModel.Footer
    first: line.index === 0
}
