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
        name: "Alerts"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
            Appearance.motion = false;
            Samples.openTable();
            stage.forceActiveFocus();
        }
        function cleanup() {
            Samples.clear();
        }
        function cleanupTestCase() {
            Appearance.motion = true;
        }

        function test_answeredByKeys_data() {
            return [
                { tag: "Enter does it", ask: () => Samples.ask(), keys: [Qt.Key_Return], answer: "Yes" },
                { tag: "Space does it", ask: () => Samples.ask(), keys: [Qt.Key_Space], answer: "Yes" },
                { tag: "Escape cancels", ask: () => Samples.ask(), keys: [Qt.Key_Escape], answer: "No" },
                { tag: "Tab leads to the other", ask: () => Samples.ask(), keys: [Qt.Key_Tab, Qt.Key_Return], answer: "No" },
                { tag: "an arrow leads to the other", ask: () => Samples.ask(), keys: [Qt.Key_Left, Qt.Key_Return], answer: "No" },
                { tag: "text is taken along", ask: () => Samples.askText("so"), keys: [Qt.Key_A, Qt.Key_Return], answer: "Yes: a" },
                { tag: "text that stays", ask: () => Samples.askText("so"), keys: [Qt.Key_End, Qt.Key_B, Qt.Key_Enter], answer: "Yes: sob" },
                { tag: "Escape in a field cancels", ask: () => Samples.askText("so"), keys: [Qt.Key_Escape], answer: "No: so" },
                { tag: "a sheet begins with its first choice", ask: () => Samples.askSheet("What?"), keys: [Qt.Key_Return], answer: "Keep" },
                { tag: "a sheet's next", ask: () => Samples.askSheet("What?"), keys: [Qt.Key_Down, Qt.Key_Return], answer: "Delete" },
                { tag: "a sheet's last cancels", ask: () => Samples.askSheet("What?"), keys: [Qt.Key_Down, Qt.Key_Down, Qt.Key_Return], answer: "No" },
                { tag: "Escape leaves a sheet", ask: () => Samples.askSheet("What?"), keys: [Qt.Key_Escape], answer: "No" },
                { tag: "a day by wheels", ask: () => Samples.askDate(new Date(Date.UTC(2024, 2, 7, 12))), keys: [Qt.Key_Down, Qt.Key_Right, Qt.Key_Down, Qt.Key_Return], answer: "Yes 2024-04-08T11:00:00Z" },
            ];
        }
        function test_answeredByKeys(data) {
            data.ask();
            data.keys.forEach(key => keyClick(key));
            compare(Samples.answers, [data.answer]);
            compare(Samples.alertCenter.current, null);
        }

        function wheel(index) {
            return stage.all(stage, item => item.hasOwnProperty("rowHeight"))[index];
        }
        /*! What somebody reads in the middle of a wheel. */
        function shown(wheel) {
            const middle = wheel.mapToItem(stage, wheel.width / 2, wheel.height / 2);
            return stage.all(wheel, item => item.hasOwnProperty("lineCount")).filter(label => {
                const top = label.mapToItem(stage, 0, 0).y;
                return top < middle.y && top + label.height > middle.y;
            }).map(label => label.text);
        }

        function test_theWheelsShowTheDayThatTheyAnswer_data() {
            const next = Qt.Key_Down;
            return [
                { tag: "30 days after", day: [2026, 10, 23], keys: [next], shown: ["23", "December", "2026"], answer: "2026-12-23" },
                { tag: "31 days after", day: [2024, 2, 7], keys: [next], shown: ["7", "April", "2024"], answer: "2024-04-07" },
                { tag: "the last of April", day: [2024, 3, 30], keys: [next], shown: ["30", "May", "2024"], answer: "2024-05-30" },
                { tag: "the last of January", day: [2024, 0, 31], keys: [next], shown: ["29", "February", "2024"], answer: "2024-02-29" },
                { tag: "another year", day: [2024, 1, 29], keys: [Qt.Key_Right, next], shown: ["28", "February", "2025"], answer: "2025-02-28" },
            ];
        }
        function test_theWheelsShowTheDayThatTheyAnswer(data) {
            Samples.askDate(new Date(Date.UTC(data.day[0], data.day[1], data.day[2], 12)));
            keyClick(Qt.Key_Right);
            data.keys.forEach(key => keyClick(key));
            tryVerify(() => JSON.stringify([0, 1, 2].map(i => shown(wheel(i))[0])) === JSON.stringify(data.shown),
                      1000, JSON.stringify([0, 1, 2].map(i => shown(wheel(i)))));
            keyClick(Qt.Key_Return);
            compare(Samples.answers[0].slice(4, 14), data.answer);
        }

        function test_aWheelThatStillTurnsIsAnswered_data() {
            return [
                { tag: "by a button", answer: () => mouseClick(stage.all(stage, item => item.text === "Yes" && item.hasOwnProperty("primary"))[0]) },
                { tag: "by Enter on another wheel", answer: () => { wheel(0).forceActiveFocus(); keyClick(Qt.Key_Return); } },
            ];
        }
        function test_aWheelThatStillTurnsIsAnswered(data) {
            Samples.askDate(new Date(Date.UTC(2024, 2, 7, 12)));
            const year = wheel(2);
            const y = year.height / 2;
            touchEvent(year).press(1, year, year.width / 2, y).commit();
            for (let step = 1; step <= 10; ++step) {
                touchEvent(year).move(1, year, year.width / 2, y - step * year.rowHeight * 0.24).commit();
                wait(20);
            }
            verify(year.moving);
            const row = shown(year)[0];
            verify(Number(row) > 2024);
            data.answer();
            compare(Samples.answers[0].slice(4, 8), row);
            touchEvent(stage).release(1, stage, 10, 10).commit();
        }

        function test_aKeyThatIsStillHeldDoesNotAnswer_data() {
            return [
                { tag: "buttons", ask: () => Samples.ask(), answer: "Yes" },
                { tag: "a field", ask: () => Samples.askText("so"), answer: "Yes: so" },
                { tag: "wheels", ask: () => Samples.askDate(new Date(Date.UTC(2024, 2, 7, 12))), answer: "Yes 2024-03-07T12:00:00Z" },
                { tag: "a sheet", ask: () => Samples.askSheet("What?"), answer: "Keep" },
            ];
        }
        function test_aKeyThatIsStillHeldDoesNotAnswer(data) {
            for (const key of [Qt.Key_Return, Qt.Key_Enter]) {
                const before = Samples.answers.length;
                data.ask();
                for (let i = 0; i < 3; ++i)
                    Samples.repeatKey(stage.Window.window, key);
                compare(Samples.answers.length, before);
                keyClick(key);
                compare(Samples.answers.length, before + 1);
                compare(Samples.answers[before], data.answer);
            }
        }

        function test_aFieldKeepsItsTextWhenItIsLeft() {
            Samples.askText("so");
            keyClick(Qt.Key_End);
            keyClick(Qt.Key_B);
            const field = stage.Window.activeFocusItem;
            keyClick(Qt.Key_Tab);
            verify(!field.activeFocus);
            compare(field.text, "sob");
            keyClick(Qt.Key_Escape);
            compare(Samples.answers, ["No: sob"]);
        }

        function test_theKeysReturnToWhereTheyWere() {
            keyClick(Qt.Key_Down);
            const before = stage.Window.activeFocusItem;
            verify(before);
            Samples.ask();
            verify(stage.Window.activeFocusItem !== before);
            keyClick(Qt.Key_Return);
            compare(stage.Window.activeFocusItem, before);
        }

        function test_nothingBehindHearsAnything() {
            const table = Samples.openTable();
            Samples.ask();
            mouseClick(stage, 200, 110);
            keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_Escape);
            compare(Samples.answers, ["No"]);
            compare(table.heard, []);
        }

        function test_touchBesideASheetCancelsIt() {
            Samples.askSheet("What?");
            mouseClick(stage, 200, 100); // the second of two quick touches
            compare(Samples.answers, []);
            wait(Tokens.arrival + 100);
            mouseClick(stage, 200, 100);
            compare(Samples.answers, ["No"]);
            Samples.ask();
            mouseClick(stage, 200, 40);
            compare(Samples.answers, ["No"]);
        }
    }
}
