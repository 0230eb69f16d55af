import QtQuick
import Kesto

/*! The header or the footer of a section. */
SectionHeader {
    required property TableLine line

    text: line.shown.title
    footer: line.shown.isFooter
    first: line.index === 0
}
