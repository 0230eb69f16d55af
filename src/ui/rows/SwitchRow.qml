import QtQuick
import Kesto

/*! A title with a switch; a touch anywhere on the row turns it. */
ListRow {
    id: row

    property bool on: false

    signal turned(bool on)

    role: Accessible.CheckBox
    checkable: true
    marked: on
    onActivated: control.toggleByUser()

    Switch {
        id: control

        function toggleByUser(): void {
            toggle();
            row.turned(checked);
        }

        enabled: row.available
        name: row.title
        checked: row.on
        activeFocusOnTab: false
        onToggled: row.turned(checked)
    }

    // A touch breaks the binding of checked; what the row says holds again as soon as it says something.
    onOnChanged: control.checked = on
}
