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

        height: 520
        focus: true
    }
    TextField {
        id: outside

        y: 760
        width: 200
    }

    TestCase {
        name: "Calendar"
        when: windowShown

        property CalendarViewController screen
        property Item page
        property Item grid

        function init() {
            failOnWarning(/.?/);
            Appearance.motion = false;
            screen = Samples.openCalendar(); // today is 7 March 2024
            stage.forceActiveFocus();
            const view = stage.all(stage, item => item.controller === screen && item.hasOwnProperty("wide"))[0];
            page = stage.all(view, item => item.hasOwnProperty("contentY"))[0];
            grid = stage.all(view, item => item.hasOwnProperty("cursor") && item.hasOwnProperty("byKeyboard"))[0];
            verify(page && grid);
            wait(20);
        }
        function cleanup() {
            Appearance.textScale = 1;
            Samples.clear();
        }
        function cleanupTestCase() {
            Appearance.motion = true;
        }

        function fields() {
            return stage.all(page, item => item.hasOwnProperty("cursorPosition"));
        }
        function inMonth() {
            for (let each = stage.Window.activeFocusItem; each; each = each.parent) {
                if (each === grid)
                    return true;
            }
            return false;
        }
        /*! What a screen reader says of the day under the cursor. */
        function cursorDay() {
            const found = stage.all(grid, item => item.hasOwnProperty("isSelected") && item.current);
            compare(found.length, 1, "one day has the cursor");
            return found[0].accessibleName.split(",")[0];
        }
        function keys() {
            for (const key of arguments)
                keyClick(key);
        }

        function test_theArrowsWalkOverTheMonthsEdges_data() {
            const up = Qt.Key_Up, down = Qt.Key_Down, left = Qt.Key_Left, right = Qt.Key_Right, page = Qt.Key_PageDown;
            return [
                { tag: "a week on", keys: [down], month: "March 2024", day: "14 March 2024" },
                { tag: "to the first cell", keys: [up, left, left, left], month: "March 2024", day: "26 February 2024" },
                { tag: "before the first cell", keys: [up, left, left, left, left], month: "February 2024", day: "25 February 2024" },
                { tag: "to the last cell", keys: [down, down, down, right, right, right], month: "March 2024", day: "31 March 2024" },
                { tag: "after the last cell", keys: [down, down, down, right, right, right, right], month: "April 2024", day: "1 April 2024" },
                { tag: "weeks and weeks", keys: [down, down, down, down, down, down, down, down, down], month: "May 2024", day: "9 May 2024" },
                { tag: "a page keeps the place", keys: [right, page], month: "April 2024", day: "12 April 2024" },
                { tag: "to a month with fewer weeks", keys: [page, page, page, page, page, page, down, down, down, down, Qt.Key_PageUp], month: "August 2024", day: "1 September 2024" },
                { tag: "home", keys: [page, page, Qt.Key_Home], month: "March 2024", day: "7 March 2024" },
            ];
        }
        function test_theArrowsWalkOverTheMonthsEdges(data) {
            data.keys.forEach(key => keyClick(key));
            compare(screen.month.title, data.month);
            compare(cursorDay(), data.day);
        }

        function test_aDayIsSelectedByKeysAndTouch() {
            keys(Qt.Key_Right, Qt.Key_Enter);
            compare(screen.dateText, "08 March");
            keys(Qt.Key_PageDown, Qt.Key_Space);
            compare(screen.dateText, "12 April");
            keys(Qt.Key_Home, Qt.Key_Up, Qt.Key_Return);
            compare(screen.dateText, "12 April", "a day before the start is passed over");

            const touched = stage.all(grid, item => item.hasOwnProperty("isSelected") && item.number === 20)[0];
            mouseClick(touched);
            compare(screen.dateText, "20 March");
            keys(Qt.Key_Right);
            compare(cursorDay(), "21 March 2024", "the arrows go on from there");
        }

        function test_theMarksLieOverTheDays_data() {
            return [{ tag: "usual text", scale: 1 }, { tag: "twice the text", scale: 2 }];
        }
        function test_theMarksLieOverTheDays(data) {
            Appearance.textScale = data.scale;
            screen.previousMonth();
            waitForRendering(stage, 200);
            const marks = stage.all(grid, item => item.hasOwnProperty("labelMargin"))[0];
            const cells = stage.all(grid, item => item.hasOwnProperty("isSelected"));
            compare(cells.length, screen.month.weeks * 7);
            cells.forEach(cell => {
                const at = cell.mapToItem(marks, 0, 0);
                fuzzyCompare(at.x, cell.index % 7 * marks.width / 7, 0.01);
                compare(at.y, Math.floor(cell.index / 7) * marks.cellHeight);
                compare(cell.height, marks.cellHeight);
            });
            compare(marks.height, screen.month.weeks * marks.cellHeight);
        }

        function test_EnterLeadsThroughTheFields() {
            const all = fields();
            compare(all.length, 4);
            all[0].forceActiveFocus(Qt.TabFocusReason);
            keys(Qt.Key_7, Qt.Key_2, Qt.Key_Return);
            verify(all[1].activeFocus);
            keys(Qt.Key_9, Qt.Key_9, Qt.Key_Enter);
            verify(all[2].activeFocus);
            keys(Qt.Key_Return);
            verify(all[3].activeFocus);
            keys(Qt.Key_Return);
            verify(inMonth());
            compare(all.map(field => field.text), ["72", "99", "", ""]);
            compare(screen.currentWeight, "72.0 kg");
            for (let tag = 0; tag < 2; ++tag)
                screen.footer.endEditing(tag, "");
        }

        function test_EscapeLeavesAFieldAndThenTheScreen() {
            for (const field of fields()) {
                field.forceActiveFocus(Qt.TabFocusReason);
                keys(Qt.Key_8, Qt.Key_Escape);
                verify(inMonth());
                compare(field.text, "");
            }
            compare(Samples.stack().viewControllers.length, 2);
            keys(Qt.Key_Escape);
            compare(Samples.stack().viewControllers.length, 1);
        }

        function test_onlyTheScreensOwnFieldsComeIntoSight() {
            verify(page.contentHeight > page.height + 100, "there is something to scroll");
            fields()[3].forceActiveFocus(Qt.TabFocusReason);
            const below = page.contentY;
            verify(below > 0);
            const y = fields()[3].mapToItem(page, 0, 0).y;
            verify(y >= 0 && y < page.height);
            page.contentY = 0;
            outside.forceActiveFocus(Qt.TabFocusReason);
            compare(page.contentY, 0);
        }

        function test_todaysPhaseStandsOutFromTodaysColour() {
            const today = stage.all(grid, item => item.hasOwnProperty("isSelected") && item.isToday)[0];
            const image = grabImage(scene);
            const at = today.mapToItem(scene, today.width / 2, 0);
            const column = [];
            for (let y = Math.round(today.height * 0.75); y < today.height - 1; ++y)
                column.push(String(image.pixel(Math.round(at.x), Math.round(at.y) + y)));
            const line = column.map(color => color === String(today.color));
            const first = line.indexOf(true);
            const last = line.lastIndexOf(true);
            verify(last > first && first > 0, "there is a line");
            for (const around of [first - 1, last + 1])
                compare(column[around], String(Tokens.colors.surface));
        }

        function test_theTitleStaysInItsLine() {
            while (screen.month.title !== "November 2024")
                screen.nextMonth();
            const label = stage.all(grid, item => item.hasOwnProperty("lineCount") && item.text === screen.month.title)[0];
            compare(label.font.pixelSize, Tokens.textTitle);
            for (const width of [390, 320, 300, 290]) {
                stage.width = width;
                wait(10);
                compare(label.lineCount, 1, "in " + width);
                verify(label.font.pixelSize >= Tokens.textSmall);
            }
            stage.width = 390;
        }

        function test_theDayOpensByEveryKey_data() {
            return [{ key: Qt.Key_Return }, { key: Qt.Key_Enter }, { key: Qt.Key_Space }];
        }
        function test_theDayOpensByEveryKey(data) {
            const row = stage.all(page, item => item.subtitle === screen.dateText)[0];
            row.forceActiveFocus(Qt.TabFocusReason);
            keyClick(data.key);
            compare(Samples.stack().viewControllers.length, 3);
        }

        function test_thePhaseIsNamedInItsColour_data() {
            return [
                { tag: "Attack", day: 5, color: "#d23f3f" },
                { tag: "Cruise", day: 8, color: "#95cbf9" },
                { tag: "Consolidation", day: 18, color: "#81b74c" },
                { tag: "Stabilization", day: 28, color: "#d2bd2f" },
            ];
        }
        function test_thePhaseIsNamedInItsColour(data) {
            screen.touchCell(data.day + 3); // the month begins with 26 February
            const names = stage.all(page, item => item.hasOwnProperty("lineCount") && item.text === data.tag);
            compare(names.length, 1);
            verify(Qt.colorEqual(names[0].color, data.color), "" + names[0].color);
        }
    }
}
