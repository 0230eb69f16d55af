import QtQuick

/*!
    The edit of a field, the same for one line and for several: what the user typed is committed to the object that the
    field was entered for, when the field is left; Escape brings back what was there. Until the user types, the field shows
    \a value.
*/
QtObject {
    id: edit

    /*! A TextInput or a TextEdit. */
    required property var field
    property string value
    /*! The object that the value belongs to. The field may show another one's before it is left. */
    property string subject
    /*! The user typed something that is not committed yet. */
    property bool typed: false
    property bool entered: false
    property string openedFor
    property string before
    /*! What the field shows: while it is entered, not what takes the place of its object meanwhile. */
    readonly property string current: entered ? before : value

    signal committed(string subject, string text)

    function enter(): void {
        openedFor = subject;
        before = value;
        entered = true;
        typed = false;
    }
    function commit(): void {
        const text = field.text;
        if (typed) {
            typed = false;
            committed(openedFor, text);
        }
        revert();
    }
    function revert(): void {
        typed = false;
        entered = false;
        field.text = Qt.binding(() => edit.current);
    }
}
