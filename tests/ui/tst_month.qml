import QtQuick
import QtTest
import Kesto
import KestoTest

Item {
    id: scene

    width: 500
    height: 844

    Stage {
        id: stage

        height: 300
    }
    Rectangle {
        id: sheet

        y: 320
        z: 1
        width: 420
        height: marks.height
        color: "white"

        MonthMarks {
            id: marks

            width: parent.width
            height: month ? month.weeks * cellHeight : 0
            cellHeight: 60
            font.family: Tokens.family
            font.bold: true
            font.pixelSize: 16
            color: "black"
            labelMargin: 6
            smileSize: 18
            smileMargin: 2
            disabledOpacity: 0.4
            otherMonthOpacity: 0.7
        }
    }

    TestCase {
        name: "Month"
        when: windowShown

        property CalendarViewController screen
        readonly property var days: [[2024, 3, 4], [2024, 3, 5], [2024, 3, 8], [2024, 3, 9], [2024, 4, 30]]

        function init() {
            failOnWarning(/.?/);
            Appearance.motion = false;
            screen = Samples.openCalendar(); // from 5 March on
            mark(days[0], "chB", false);
            mark(days[1], "bO", false);
            mark(days[2], "", true);
            mark(days[3], "feast", true);
            mark(days[4], "chB", true);
            marks.month = screen.month;
        }
        function cleanup() {
            days.forEach(day => mark(day, "", false));
            marks.month = null;
            marks.color = "black";
            marks.font.pixelSize = 16;
            sheet.width = 420;
            Samples.clear();
        }
        function cleanupTestCase() {
            Appearance.motion = true;
        }

        function mark(day, kind, jornal) {
            Samples.markDay(day[0], day[1], day[2], kind, jornal);
        }
        function drawn() {
            waitForRendering(sheet, 200);
            return grabImage(sheet);
        }
        /*! How dark a part of a cell is at its darkest: 0 for white to 10. */
        function ink(picture, index, x, y, width, height) {
            const cell = sheet.width / 7;
            const left = Math.round(index % 7 * cell), top = Math.floor(index / 7) * marks.cellHeight;
            let darkest = 255;
            for (let i = left + x; i < left + x + width; ++i) {
                for (let j = top + y; j < top + y + height; ++j)
                    darkest = Math.min(darkest, picture.green(i, j));
            }
            return Math.round((255 - darkest) / 25.5);
        }
        /*! Of the cells with something in them "<index> <ink of the label> <ink of the smile>". */
        function cells() {
            const picture = drawn(), cell = Math.floor(sheet.width / 7);
            let found = [];
            for (let index = 0; index < screen.month.weeks * 7; ++index) {
                const label = ink(picture, index, 0, 32, cell, 22);
                const smile = ink(picture, index, cell - 20, 2, 18, 18);
                if (ink(picture, index, 0, 0, cell, 60) > 0)
                    found.push(index + " " + label + " " + smile);
            }
            return found;
        }

        function test_theMarksGoWithTheirDays() {
            const march = ["7 4 0", "8 10 0", "11 0 10", "12 10 10"];
            compare(cells(), march);
            screen.nextMonth();
            compare(cells(), ["29 10 10"], "April");
            screen.nextMonth();
            compare(cells(), ["1 7 7"], "30 April before May");
            screen.nextMonth();
            compare(cells(), [], "June");
            screen.showToday();
            compare(cells(), march);
        }

        function test_aChangedDayIsDrawnAnew() {
            compare(cells().length, 4);
            mark(days[3], "", true);
            mark(days[1], "", false);
            compare(cells(), ["7 4 0", "11 0 10", "12 0 10"]);
            mark(days[1], "feast", false);
            compare(cells(), ["7 4 0", "8 10 0", "11 0 10", "12 0 10"]);
            days.forEach(day => mark(day, "", false));
            compare(cells(), []);
        }

        function test_theLookChanges() {
            compare(ink(drawn(), 8, 0, 16, 60, 16), 0);
            marks.color = "#0000ff";
            compare(drawn().blue(72, 12), 255);
            compare(cells(), ["7 4 0", "8 10 0", "11 0 10", "12 10 10"]);
            marks.font.pixelSize = 32;
            verify(ink(drawn(), 8, 0, 16, 60, 16) > 0, "a larger label is higher");
        }

        function test_aLabelStaysInItsCell_data() {
            return [{ tag: "wide", width: 490 }, { tag: "uneven", width: 375 }, { tag: "narrow", width: 182 }];
        }
        function test_aLabelStaysInItsCell(data) {
            marks.font.pixelSize = 18;
            sheet.width = data.width;
            compare(cells().map(cell => cell.split(" ")[0]), ["7", "8", "11", "12"]);
        }
    }
}
