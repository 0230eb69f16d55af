import QtQuick
import QtTest
import Kesto
import KestoTest

Item {
    id: scene

    width: 390
    height: 844

    Stage {
        id: stage

        focus: true
    }

    TestCase {
        name: "Tables"
        when: windowShown

        property SampleTable table
        property Item list

        function init() {
            failOnWarning(/.?/);
            Appearance.motion = false;
            table = Samples.openTable();
            stage.forceActiveFocus();
            list = stage.tables()[0];
            verify(list);
            wait(20);
        }
        function cleanup() {
            Samples.clear();
            Appearance.textScale = 1;
        }
        function cleanupTestCase() {
            Appearance.motion = true;
        }

        /*! A row, scrolled into view. */
        function row(section, index) {
            const name = "row/" + section + "/" + index;
            for (let line = 0; line < list.count; ++line) {
                const item = list.itemAtIndex(line);
                if (item && item.objectName === name) {
                    list.positionViewAtIndex(line, ListView.Contain);
                    wait(10);
                    return item;
                }
                list.positionViewAtIndex(line, ListView.Contain);
            }
            fail("no " + name);
        }
        function fieldOf(item) {
            const found = stage.all(item, child => child.hasOwnProperty("cursorPosition"));
            compare(found.length, 1);
            return found[0];
        }
        function keys() {
            for (const key of arguments)
                keyClick(key);
        }

        function test_touches() {
            mouseClick(row(0, 0));
            compare(table.heard, ["selected 0.0"]);
            mouseClick(row(1, 1));
            compare(table.heard.length, 2);
            compare(table.heard[1], "selected 1.1");
        }

        function test_aDisabledRowIsDeaf() {
            mouseClick(row(1, 2));
            compare(table.heard, []);
        }

        function test_theAccessoryIsNotTheRow() {
            const item = row(1, 3);
            mouseClick(item, item.width - 36, item.height / 2);
            compare(table.heard, ["accessory 1.3"]);
        }

        function test_aSwitchTurnsByTouchAndKey() {
            const item = row(1, 0);
            mouseClick(item, 40, item.height / 2);
            compare(table.heard, ["off"]);
            mouseClick(item, item.width - 60, item.height / 2);
            compare(table.heard, ["off", "on"]);
        }

        function test_keysGoOverHeadersAndTouch() {
            keys(Qt.Key_Down, Qt.Key_Up, Qt.Key_Return);
            compare(table.heard, ["selected 0.0"]);
            keys(Qt.Key_End, Qt.Key_Space);
            compare(table.heard[1], "selected 3.0");
            keys(Qt.Key_Up, Qt.Key_Return);
            compare(table.heard[2], "selected 2.3");
        }

        function test_aFieldIsCommitted_data() {
            return [
                { tag: "by Enter", leave: () => keyClick(Qt.Key_Return), heard: ["200: 7"], text: "7" },
                { tag: "by Tab", leave: () => keyClick(Qt.Key_Tab), heard: ["200: 7"], text: "7" },
                { tag: "by a touch elsewhere", leave: () => mouseClick(row(0, 0)), heard: ["200: 7", "selected 0.0"], text: "7" },
                { tag: "not by Escape", leave: () => keyClick(Qt.Key_Escape), heard: [], text: "5" },
            ];
        }
        function test_aFieldIsCommitted(data) {
            const field = fieldOf(row(0, 1));
            mouseClick(field);
            verify(field.activeFocus);
            keyClick(Qt.Key_7);
            compare(field.text, "7");
            data.leave();
            verify(!field.activeFocus);
            compare(table.heard, data.heard);
            compare(field.text, data.text);
        }

        function test_aFieldShowsWhatTheScreenMadeOfIt() {
            const field = fieldOf(row(0, 1));
            mouseClick(field);
            keys(Qt.Key_0, Qt.Key_Return);
            compare(table.heard, ["200: 0"]);
            compare(field.text, "1");
            mouseClick(field);
            keys(Qt.Key_9, Qt.Key_Return);
            compare(field.text, "9");
        }

        function test_TabGoesFromFieldToField() {
            const first = fieldOf(row(0, 1));
            const second = fieldOf(row(0, 2));
            mouseClick(first);
            keyClick(Qt.Key_Tab);
            verify(second.activeFocus);
            keyClick(Qt.Key_X);
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
            verify(first.activeFocus);
            compare(table.heard, ["201: x"]);
        }

        function test_onlyWhatWasTypedIsCommitted_data() {
            return [
                { tag: "entered and left", type: [], heard: [] },
                { tag: "the same typed over it", type: [Qt.Key_5], heard: ["200: 5"] },
                { tag: "typed and taken away", type: [Qt.Key_End, Qt.Key_1, Qt.Key_Backspace], heard: ["200: 5"] },
                { tag: "typed and brought back", type: [Qt.Key_1, Qt.Key_Escape], heard: [] },
            ];
        }
        function test_onlyWhatWasTypedIsCommitted(data) {
            for (const leave of [() => keyClick(Qt.Key_Return), () => mouseClick(row(0, 0))]) {
                table = Samples.openTable();
                list = stage.tables()[0];
                wait(20);
                const field = fieldOf(row(0, 1));
                mouseClick(field);
                data.type.forEach(key => keyClick(key));
                leave();
                compare(table.heard.filter(line => line !== "selected 0.0"), data.heard);
                compare(field.text, "5");
            }
        }

        function test_EnterOnARowWithAFieldEditsIt() {
            keys(Qt.Key_Down);
            keys(Qt.Key_Return);
            verify(fieldOf(row(0, 1)).activeFocus);
            keys(Qt.Key_8, Qt.Key_Return, Qt.Key_Up, Qt.Key_Return);
            compare(table.heard, ["200: 8", "selected 0.0"]);
        }

        function swipe(item, from, to) {
            const y = item.height / 2;
            mousePress(item, from, y);
            for (let step = 1; step <= 8; ++step)
                mouseMove(item, from + (to - from) * step / 8, y, 10);
            mouseRelease(item, to, y);
        }

        function test_swipeBaresDelete() {
            const item = row(2, 1);
            swipe(item, 300, 120);
            compare(table.heard, []);
            mouseClick(item, item.width - 40, item.height / 2);
            compare(table.heard, ["deleted Cruise"]);
        }

        function test_aShortSwipeOrAnotherTouchClosesIt() {
            const item = row(2, 1);
            swipe(item, 300, 280);
            swipe(item, 300, 120);
            verify(item.deleteShown);
            const other = row(2, 2);
            swipe(other, 300, 120);
            verify(!item.deleteShown);
            verify(other.deleteShown);
            mouseClick(other, 60, other.height / 2);
            verify(!other.deleteShown);
            compare(table.heard, []);
        }

        function test_whatCanNotBeDeletedDoesNotSlide() {
            const item = row(1, 1);
            swipe(item, 300, 120);
            verify(!item.deleteShown);
        }

        function test_DeleteKeyDeletesTheRow() {
            keys(Qt.Key_End, Qt.Key_Up, Qt.Key_Delete);
            compare(table.heard, ["deleted Feast"]);
        }

        function test_movedByTheHandle() {
            table.editing = true;
            const item = row(2, 0);
            list.positionViewAtEnd(); // far from the edges
            const from = item.mapToItem(stage, item.width - 34, item.height / 2);
            mousePress(stage, from.x, from.y);
            for (let y = 0; y <= 2 * item.height; y += 8)
                mouseMove(stage, from.x, from.y + y, 5);
            mouseRelease(stage, from.x, from.y + 2 * item.height);
            compare(table.heard, ["moved 0 to 2"]);
        }

        function test_theListComesAlongWithARowThatIsCarriedOverItsEdge() {
            table.editing = true;
            list.positionViewAtBeginning();
            const item = row(2, 0);
            verify(!list.atYEnd);
            const from = item.mapToItem(stage, item.width - 34, item.height / 2);
            mousePress(stage, from.x, from.y);
            mouseMove(stage, from.x, from.y + 40, 5);
            mouseMove(stage, from.x, stage.height + 10, 5);
            tryVerify(() => list.atYEnd);
            mouseRelease(stage, from.x, stage.height + 10);
            compare(table.heard, ["moved 0 to 3"]);
            compare(item.lift, 0);
        }

        function test_movedByKeys() {
            table.editing = true;
            keys(Qt.Key_End, Qt.Key_Up);
            keyClick(Qt.Key_Up, Qt.ControlModifier);
            compare(table.heard, ["moved 3 to 2"]);
            table.editing = false;
            keyClick(Qt.Key_Up, Qt.ControlModifier);
            compare(table.heard.length, 1);
        }

        function test_theWheelsOpenBelowAndChange() {
            mouseClick(row(0, 0));
            const wheels = row(0, 1);
            verify(wheels.height > 150);
            compare(wheels.shown.kind, TableRow.Picker);
            keys(Qt.Key_Down, Qt.Key_Return);
            keys(Qt.Key_Down);
            compare(table.heard, ["selected 0.0", "71.5"]);
            verify(row(0, 0).shown.detail.startsWith("71.5"));
        }

        function test_wheelsThatTurnCountWhenTheyGo_data() {
            return [
                { tag: "closed", go: () => table.selectRow(0, 0), heard: ["selected 0.0", "selected 0.0"] },
                { tag: "covered", go: () => Samples.push(), heard: ["selected 0.0"] },
            ];
        }
        function test_wheelsThatTurnCountWhenTheyGo(data) {
            mouseClick(row(0, 0));
            const wheels = row(0, 1);
            tryVerify(() => wheels.height > 150);
            const from = wheels.mapToItem(stage, wheels.width / 2 - 40, wheels.height / 2);
            mousePress(stage, from.x, from.y);
            for (let step = 1; step <= 10; ++step)
                mouseMove(stage, from.x, from.y - step * 8, 40);
            compare(table.heard, ["selected 0.0"]);
            data.go();
            const heard = table.heard.slice(); // the touch and the weight
            mouseRelease(stage, from.x, from.y - 80);
            tryVerify(() => list.interactive, 1000, "the table scrolls again");
            compare(heard.length, data.heard.length + 1);
            verify(/^7[1-4]\.5$/.test(heard[heard.length - 1]), heard.join());
            compare(heard.slice(0, -1), data.heard);
        }

        function test_nothingIsCutOff_data() {
            return [
                { tag: "100 %", scale: 1, width: 390 },
                { tag: "200 %", scale: 2, width: 390 },
                { tag: "200 % on the smallest", scale: 2, width: 320 },
                { tag: "tablet", scale: 1, width: 820 },
            ];
        }
        function test_nothingIsCutOff(data) {
            Appearance.textScale = data.scale;
            stage.width = data.width;
            table = Samples.openTable(true);
            wait(20);
            list = stage.tables()[0];
            for (const text of stage.all(stage, item => item.hasOwnProperty("truncated") && item.visible))
                verify(!text.truncated, "cut: " + text.text);
            for (let line = 0; line < list.count; ++line) {
                list.positionViewAtIndex(line, ListView.Contain);
                wait(10);
                const item = list.itemAtIndex(line);
                verify(!item.shown.isRow || item.height >= 44, "row " + line + " is " + item.height + " high");
                for (const text of stage.all(item, child => child.hasOwnProperty("truncated") && child.visible)) {
                    const where = text.mapToItem(item, 0, 0);
                    verify(!text.truncated, "cut: " + text.text);
                    verify(text.paintedWidth <= text.width + 1, "too wide: " + text.text);
                    verify(where.x >= 0 && where.x + text.width <= item.width + 1, "outside: " + text.text);
                    verify(where.y >= -1 && where.y + text.paintedHeight <= item.height + 1, "too high: " + text.text);
                }
            }
            stage.width = 390;
        }

        function test_theChosenRowIsTold() {
            const chosen = () => {
                const focused = stage.Window.activeFocusItem;
                verify(!focused.Accessible.ignored);
                return [focused.Accessible.role, focused.Accessible.name, focused.Accessible.description];
            };
            keys(Qt.Key_Home);
            const first = row(0, 0);
            compare(chosen(), [Accessible.ListItem, first.shown.title + ", " + first.shown.detail, ""]);
            keys(Qt.Key_Down);
            const field = row(0, 1);
            compare(chosen(), [Accessible.Grouping, field.shown.title, "5 " + field.shown.unit]);
            verify(first.Accessible.ignored);
            keys(Qt.Key_Return);
            verify(fieldOf(field).activeFocus);
            verify(field.Accessible.ignored, "the field has the keys, and its own name");
            keys(Qt.Key_7, Qt.Key_Return);
            compare(chosen()[2], "7 " + field.shown.unit);
            while (stage.Window.activeFocusItem.shown?.kind !== TableRow.Switch)
                keys(Qt.Key_Down);
            compare(chosen()[0], Accessible.CheckBox);
            verify(stage.Window.activeFocusItem.Accessible.checked);
            keys(Qt.Key_Space);
            verify(!stage.Window.activeFocusItem.Accessible.checked);
        }

        function test_everyRowHasANameAndARole() {
            for (let line = 0; line < list.count; ++line) {
                list.positionViewAtIndex(line, ListView.Contain);
                wait(10);
                const item = list.itemAtIndex(line);
                if (!item.shown.isRow)
                    continue;
                const named = stage.all(item, child => child.Accessible && !child.Accessible.ignored && child.Accessible.name.length > 0);
                verify(named.length > 0, "row " + line);
            }
        }
    }
}
