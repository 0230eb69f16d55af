import QtQuick
import Kesto

/*!
    Draws the table of any TableViewController. The keyboard: Up and Down choose a row, Enter touches it, Space does, too, or
    touches its check button, Tab goes from field to field, Delete deletes, Ctrl with Up and Down moves a row while the table
    is edited.
*/
TableBase {
    id: root

    /*! An index of the headers at the right. */
    property bool showsIndex: false
    property string picture
    property string emptyText
    property real topMargin: Tokens.unit
    property real bottomMargin: Tokens.wide
    readonly property alias list: list
    /*! Over the rows; scrolls with them. A FocusScope, which may have the keys instead of a row. */
    property alias header: list.header
    property bool byKeyboard: false
    property TableLine openLine: null

    inset: Math.max(Tokens.margin, (list.width - Tokens.readableWidth) / 2)
    keyboardShown: byKeyboard && list.activeFocus
    onTouched: line => {
        byKeyboard = false;
        list.currentIndex = (line as TableLine).index;
        focusList();
    }
    onFieldEntered: line => {
        list.currentIndex = (line as TableLine).index;
        list.positionViewAtIndex(list.currentIndex, ListView.Contain);
    }
    onFieldLeft: focusList()
    onDeleteShown: line => {
        if (openLine && openLine !== line)
            openLine.closeDelete();
        openLine = line as TableLine;
    }
    onTabbed: (line, by, event) => event.accepted = toField(line as TableLine, by)
    onLifted: line => {
        carriedLine = line as TableLine;
        carriedBy = 0;
        carriedFrom = (line as TableLine).y - list.contentY;
        target = null;
    }
    onCarried: (line, by) => {
        carriedBy = by;
        carry(line as TableLine);
    }
    onDropped: line => drop(line as TableLine)
    onStepped: (line, by) => step(line as TableLine, by)

    function focusList(): void {
        const line = currentLine();
        if (line)
            line.takeKeys();
        else
            list.forceActiveFocus(Qt.OtherFocusReason);
    }
    /*! The keys come: to the first row that can be seen. */
    function enter(): void {
        if (list.currentIndex >= 0 || list.count === 0 || list.headerItem?.activeFocus)
            return;
        list.forceLayout();
        let i = Math.max(0, list.indexAt(list.width / 2, list.contentY + 1));
        for (list.currentIndex = i; i < list.count && !(currentLine() && currentLine().shown.isRow); )
            list.currentIndex = ++i;
    }
    /*! To the next row, over headers and footers. */
    function go(by: int): bool {
        const before = list.currentIndex;
        let i = before < 0 ? (by > 0 ? -1 : list.count) : before;
        do {
            i += by;
            if (i < 0 || i >= list.count) {
                list.currentIndex = before;
                return false;
            }
            list.currentIndex = i;
        } while (!currentLine() || !currentLine().shown.isRow);
        list.positionViewAtIndex(list.currentIndex, ListView.Contain);
        return true;
    }
    function currentLine(): TableLine {
        return list.currentItem as TableLine;
    }
    /*! To the next field; false when there is none. */
    function toField(from: TableLine, by: int): bool {
        for (let i = from.index + by; i >= 0 && i < list.count; i += by) {
            list.currentIndex = i;
            const line = currentLine();
            if (line && line.enabled && line.shown.hasField) {
                line.activate();
                return true;
            }
        }
        list.currentIndex = from.index;
        return false;
    }

    // Moving a row: it floats, a line shows where it would go, and the controller hears of it when it is let go. Beyond
    // an edge the list comes along.
    property TableLine carriedLine: null
    property TableLine target: null
    property real carriedBy: 0
    property real carriedFrom: 0

    function carry(line: TableLine): void {
        line.lift = carriedFrom + carriedBy + list.contentY - line.y;
        const middle = line.y + line.lift + line.height / 2;
        const y = Math.max(list.originY, Math.min(list.contentHeight + list.originY - 1, middle));
        // The place under it, or the nearest on the way there.
        let i = list.indexAt(list.width / 2, y);
        target = null;
        for (const back = i > line.index ? -1 : 1; i >= 0 && i !== line.index && !target; i += back) {
            const each = list.itemAtIndex(i) as TableLine;
            if (each && each.shown.isRow && controller.canMoveRowByUser(line.shown.section, line.shown.row, each.shown.section, each.shown.row))
                target = each;
        }
    }
    function scrollWith(line: TableLine): void {
        const above = list.contentY - (line.y + line.lift);
        const below = line.y + line.lift + line.height - (list.contentY + list.height);
        const by = above > 0 ? -above : below > 0 ? below : 0;
        const first = list.originY - list.topMargin;
        const last = Math.max(first, list.originY + list.contentHeight + list.bottomMargin - list.height);
        list.contentY = Math.max(first, Math.min(last, list.contentY + Math.max(-12, Math.min(12, by / 4))));
        carry(line);
    }
    function drop(line: TableLine): void {
        const section = target ? target.shown.section : -1;
        const row = target ? target.shown.row : -1;
        line.lift = 0;
        carriedBy = 0;
        carriedLine = null;
        target = null;
        if (section >= 0)
            controller.moveRowByUser(line.shown.section, line.shown.row, section, row);
    }
    function step(line: TableLine, by: int): void {
        if (line.shown.canMove && line.shown.row + by >= 0)
            controller.moveRowByUser(line.shown.section, line.shown.row, line.shown.section, line.shown.row + by);
    }

    ListView {
        id: list

        objectName: "list"
        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        model: root.controller.table
        topMargin: root.topMargin
        bottomMargin: root.bottomMargin
        keyNavigationEnabled: false
        highlightFollowsCurrentItem: false
        currentIndex: -1
        cacheBuffer: root.carriedLine ? 100000 : 400 // a row that is carried away must not be let go
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.List
        Accessible.name: root.controller.title

        delegate: TableLine { table: root }

        onActiveFocusChanged: if (activeFocus) root.enter()
        onCountChanged: if (activeFocus) root.enter()
        Component.onCompleted: if (activeFocus) root.enter()
        Keys.onPressed: event => {
            const line = root.currentLine();
            root.byKeyboard = true;
            event.accepted = true;
            if ((event.modifiers & Qt.ControlModifier) && (event.key === Qt.Key_Up || event.key === Qt.Key_Down)) {
                if (line && root.controller.editing)
                    root.step(line, event.key === Qt.Key_Up ? -1 : 1);
                return;
            }
            switch (event.key) {
            case Qt.Key_Up: event.accepted = root.go(-1); break;
            case Qt.Key_Down: event.accepted = root.go(1); break;
            case Qt.Key_Home: list.currentIndex = -1; root.go(1); break;
            case Qt.Key_End: list.currentIndex = -1; root.go(-1); break;
            case Qt.Key_PageDown: root.page(1); break;
            case Qt.Key_PageUp: root.page(-1); break;
            case Qt.Key_Return:
            case Qt.Key_Enter: if (line) line.activate(); break;
            case Qt.Key_Space: if (line && !line.check()) line.activate(); break;
            case Qt.Key_Delete: if (line) line.remove(); break;
            default: event.accepted = false;
            }
        }

        move: Transition { NumberAnimation { properties: "y"; duration: Tokens.normal } }
        displaced: Transition { NumberAnimation { properties: "y"; duration: Tokens.normal; easing.type: Easing.OutCubic } }
        add: Transition { NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Tokens.normal } }

        ScrollBar { view: list }
    }
    function page(by: int): void {
        for (let i = 0; i < 8 && go(by); ++i);
    }

    Timer {
        running: root.carriedLine !== null
        repeat: true
        interval: 16
        onTriggered: root.scrollWith(root.carriedLine)
    }
    Rectangle {
        visible: root.target !== null
        x: root.inset
        width: root.width - 2 * x
        height: Tokens.dropLineHeight
        radius: height / 2
        color: Tokens.colors.accent
        y: {
            const to = root.target;
            if (!to || !root.carriedLine)
                return 0;
            const below = to.index > root.carriedLine.index;
            return to.y - list.contentY + (below ? to.height : 0) - 1;
        }
    }
    Loader {
        anchors.right: parent.right
        height: parent.height
        active: root.showsIndex
        visible: list.contentHeight > list.height
        sourceComponent: SectionIndex {
            table: root.controller.table
            onChosen: line => list.positionViewAtIndex(line, ListView.Beginning)
        }
    }
    Loader {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Tokens.huge, 320)
        active: list.count === 0 && (root.emptyText.length > 0 || root.picture.length > 0)
        sourceComponent: EmptyState {
            picture: root.picture
            title: root.emptyText
        }
    }
}
