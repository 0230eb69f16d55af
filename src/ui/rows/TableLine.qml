import QtQuick
import Kesto

/*!
    One line of a table, a header, a row or a footer, as its model tells it. A row of one feature is drawn by the file that
    \a cell names, which gets this line as its \c line and reads what it shows from \a value. A row's name as an anchor is
    "row/<section>/<row>".
*/
LineItem {
    id: line

    /*! The RowTable that shows this line; untyped, because that type needs this one. */
    required property var table
    readonly property TableViewController controller: table.controller
    readonly property bool editing: controller.editing
    readonly property bool current: isRow && ListView.isCurrentItem && table.keyboardShown
    readonly property Item content: loader.item as Item
    property bool deleteShown: false
    /*! What the row's tools take from its width at its sides. */
    property real before: 0
    property real after: 0
    /*! The row's room, and in it what slides aside for the button that deletes. */
    readonly property alias room: swipe
    readonly property alias sliding: loader
    property bool complete: false
    property Loader tools: null
    readonly property bool toolsNeeded: isRow && (canDelete || editing && canMove)
    /*! Lines keep their place and change their nature when a section is replaced. */
    readonly property string source: {
        if (!isRow)
            return "HeaderLine.qml";
        switch (kind) {
        case TableRow.Editable: return "FieldLine.qml";
        case TableRow.Editor: return "EditorLine.qml";
        case TableRow.Switch: return "SwitchLine.qml";
        case TableRow.Picker: return "PickerLine.qml";
        case TableRow.Picture: return "PictureLine.qml";
        case TableRow.Custom: return ViewLocator.file(cell);
        default: return "TextLine.qml";
        }
    }
    /*! A section without a header keeps away from the one before it. */
    readonly property real gapAbove: isRow && isFirst && followsRow ? Tokens.wide : 0
    /*! The title's colour: its meaning where it has one. */
    readonly property var ink: color !== undefined ? color
        : kind === TableRow.Button ? Tokens.colors.accentText : Tokens.colors.text
    property real lift: 0
    /*! The keys are the row's own, none of what is in it: it is the row that is told of. */
    readonly property bool chosen: isRow && activeFocus && !loader.activeFocus

    Accessible.ignored: !chosen
    Accessible.role: content && content.Accessible.role !== Accessible.NoRole ? content.Accessible.role : Accessible.ListItem
    Accessible.name: content && content.Accessible.name.length > 0 ? content.Accessible.name : Texts.joined([title, subtitle, detail])
    Accessible.description: Texts.joined([text.length > 0 ? text : placeholder, unit], " ")
    Accessible.checkable: content?.Accessible.checkable ?? false
    Accessible.checked: content?.Accessible.checked ?? false
    Accessible.selected: selected
    Accessible.focusable: true
    Accessible.focused: chosen
    Accessible.onPressAction: activate()

    /*! As by a touch: selects the row, or puts the cursor into its field. */
    function activate(): void {
        if (!isRow || !enabled)
            return;
        if (kind === TableRow.Switch)
            (content as SwitchRow).activated();
        else if (kind === TableRow.Editable || kind === TableRow.Editor || kind === TableRow.Picker)
            content.forceActiveFocus(Qt.TabFocusReason);
        else if (selectable)
            controller.selectRow(section, row);
        else if (accessory === TableRow.CheckButton || accessory === TableRow.InfoButton)
            controller.touchAccessory(section, row);
    }
    /*! Touches the check button of a row; false when it has none. */
    function check(): bool {
        if (!isRow || !enabled || accessory !== TableRow.CheckButton)
            return false;
        controller.touchAccessory(section, row);
        return true;
    }
    function remove(): void {
        if (canDelete)
            controller.deleteRowByUser(section, row);
    }
    function closeDelete(): void {
        deleteShown = false;
    }
    function bareDelete(): void {
        if (canDelete)
            deleteShown = true;
    }

    enabled: available
    width: ListView.view ? ListView.view.width : Tokens.narrowest
    implicitHeight: loader.implicitHeight + gapAbove
    height: implicitHeight
    objectName: isRow ? "row/" + section + "/" + row : ""
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
    // Most tables are never edited: their rows do without what edits them, and its file is not read.
    onToolsNeededChanged: {
        if (toolsNeeded) {
            tools = toolsComponent.createObject(line) as Loader;
            tools.setSource("LineTools.qml", { line: line });
        } else if (tools) {
            tools.destroy();
            tools = null;
            before = after = loader.x = 0;
        }
    }
    Component {
        id: toolsComponent

        Loader { anchors.fill: parent }
    }
    function draw(): void {
        loader.setSource(source.length > 0 ? source : "TextLine.qml", { line: line });
    }

    /*! Takes the keys back from what is in the row. */
    function takeKeys(): void {
        loader.focus = false;
        forceActiveFocus(Qt.OtherFocusReason);
    }

    onActiveFocusChanged: if (!activeFocus) loader.focus = false
    // The button deletes what it was bared for and nothing else.
    onReplaced: deleteShown = false
    onEditingChanged: deleteShown = false
    onChanged: if (!canDelete) deleteShown = false
    onDeleteShownChanged: if (deleteShown) table.deleteShown(line)
    onSourceChanged: if (complete) draw()
    Component.onCompleted: {
        complete = true;
        draw();
    }
}
