import QtQuick
import Kesto

/*!
    One line of a table, a header, a row or a footer, as its model describes it. A row of one feature is drawn by the file that
    \a cell names, which gets this line as its \c line and reads what it shows from \c line.shown. A row's name as an anchor is
    "row/<section>/<row>".
*/
LineItem {
    id: line

    /*! The RowTable that shows this line; untyped, because that type needs this one. */
    required property var table
    readonly property TableViewController controller: table.controller
    readonly property bool editing: controller.editing
    readonly property bool current: shown.isRow && ListView.isCurrentItem && table.keyboardShown
    readonly property Item content: loader.item as Item
    property bool deleteShown: false
    /*! The row that the button deletes. */
    property string deletable
    /*! What the row's tools take from its width at its sides. */
    property real before: 0
    property real after: 0
    /*! The row's room, and in it what slides aside for the button that deletes. */
    readonly property alias room: swipe
    readonly property alias sliding: loader
    property bool complete: false
    /*! A line becomes one of another kind when its section is replaced. */
    readonly property string source: {
        if (!shown.isRow)
            return "HeaderLine.qml";
        switch (shown.kind) {
        case TableRow.Editable: return shown.cell.length > 0 ? ViewLocator.file(shown.cell) : "FieldLine.qml";
        case TableRow.Editor: return "EditorLine.qml";
        case TableRow.Switch: return "SwitchLine.qml";
        case TableRow.Picker: return "PickerLine.qml";
        case TableRow.Picture: return "PictureLine.qml";
        case TableRow.Custom: return ViewLocator.file(shown.cell);
        default: return "TextLine.qml";
        }
    }
    /*! A section without a header keeps a distance from the one before it. */
    readonly property real gapAbove: shown.isRow && shown.isFirst && shown.followsRow ? Tokens.wide : 0
    /*! The title's colour: its own where it has a meaning. */
    readonly property var ink: shown.color !== undefined ? shown.color
        : shown.kind === TableRow.Button ? Tokens.colors.accentText : Tokens.colors.text
    property real lift: 0
    /*! The row itself has the keyboard focus, not a control in it. */
    readonly property bool chosen: shown.isRow && activeFocus && !loader.activeFocus

    Accessible.ignored: !chosen
    Accessible.role: content && content.Accessible.role !== Accessible.NoRole ? content.Accessible.role : Accessible.ListItem
    Accessible.name: content && content.Accessible.name.length > 0 ? content.Accessible.name : Texts.joined([shown.title, shown.subtitle, shown.detail])
    Accessible.description: Texts.joined([shown.text.length > 0 ? shown.text : shown.placeholder, shown.unit], " ")
    Accessible.checkable: content?.Accessible.checkable ?? false
    Accessible.checked: content?.Accessible.checked ?? false
    Accessible.selected: shown.selected
    Accessible.focusable: true
    Accessible.focused: chosen
    Accessible.onPressAction: activate()

    /*! As by a touch: activates the row, or puts the cursor into its field. */
    function activate(): void {
        if (shown.isRow && enabled && !controller.activateRow(shown.section, shown.row))
            content.forceActiveFocus(Qt.TabFocusReason);
    }
    /*! Touches the check button of a row; false when it has none. */
    function check(): bool {
        if (!shown.isRow || !enabled || shown.accessory !== TableRow.CheckButton)
            return false;
        controller.touchAccessory(shown.section, shown.row);
        return true;
    }
    function remove(): void {
        if (shown.canDelete)
            controller.deleteRowByUser(shown.section, shown.row);
    }
    function closeDelete(): void {
        deleteShown = false;
    }

    enabled: shown.enabled
    width: ListView.view ? ListView.view.width : Tokens.narrowest
    implicitHeight: loader.implicitHeight + gapAbove
    height: implicitHeight
    objectName: shown.isRow ? "row/" + shown.section + "/" + shown.row : ""
    z: lift !== 0 ? 2 : 0
    transform: Translate { y: line.lift }

    Item {
        id: swipe

        y: line.gapAbove
        x: line.table.inset + line.before
        width: line.width - x - line.table.inset - line.after
        height: loader.implicitHeight
        clip: loader.x < 0

        Loader {
            id: loader

            width: parent.width
        }
    }
    // Made for rows that can be edited only, and its file is not read before.
    Loader {
        id: tools

        readonly property bool needed: line.shown.isRow && (line.shown.canDelete || line.editing && line.shown.canMove)

        anchors.fill: parent
        onNeededChanged: {
            if (needed) {
                setSource("LineTools.qml", { line: line });
            } else {
                source = "";
                line.before = line.after = loader.x = 0;
            }
        }
    }
    function draw(): void {
        loader.setSource(source.length > 0 ? source : "TextLine.qml", { line: line });
    }

    /*! Moves the keyboard focus from a control in the row to the row. */
    function takeKeys(): void {
        loader.focus = false;
        forceActiveFocus(Qt.OtherFocusReason);
    }

    onActiveFocusChanged: if (!activeFocus) loader.focus = false
    onEditingChanged: deleteShown = false
    onShownChanged: if (!shown.canDelete || shown.id !== deletable) deleteShown = false
    onDeleteShownChanged: {
        if (deleteShown) {
            deletable = shown.id;
            table.deleteShown(line);
        }
    }
    onSourceChanged: if (complete) draw()
    Component.onCompleted: {
        complete = true;
        draw();
    }
}
