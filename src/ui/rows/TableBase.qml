import QtQuick
import Kesto

/*! What the lines of a table know of the table they are in. */
FocusScope {
    id: base

    required property TableViewController controller
    /*! How far rows stay from the sides. */
    property real inset: Tokens.margin
    /*! The current row shows that the keys are its. */
    property bool keyboardShown: false

    signal touched(Item line)
    signal fieldEntered(Item line)
    /*! The keys are free again. */
    signal fieldLeft
    /*! Tab in a field; unless accepted, the event goes its way. */
    signal tabbed(Item line, int by, var event)
    signal deleteShown(Item line)
    signal lifted(Item line)
    signal carried(Item line, real by)
    signal dropped(Item line)
    signal stepped(Item line, int by)
}
