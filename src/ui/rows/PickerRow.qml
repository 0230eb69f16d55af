import QtQuick
import Kesto

/*! The wheels of a picker in a row of their own. */
FocusScope {
    id: row

    required property Picker picker
    property string name
    property bool first: true
    property bool last: true

    implicitHeight: wheels.implicitHeight + 2 * Tokens.unit

    RowSurface {
        anchors.fill: parent
        first: row.first
        last: row.last
    }
    WheelPicker {
        id: wheels

        x: Tokens.margin
        y: Tokens.unit
        width: parent.width - 2 * Tokens.margin
        focus: true
        picker: row.picker
        name: row.name
    }
}
