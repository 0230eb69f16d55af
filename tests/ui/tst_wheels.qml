import QtQuick
import QtTest
import Kesto
import KestoTest

Item {
    id: scene

    width: 390
    height: 400

    Component {
        id: wheelComponent

        WheelPicker { width: scene.width }
    }
    TextField {
        id: field

        y: 340
        width: 100
    }
    SignalSpy {
        id: spy

        signalName: "selected"
    }

    TestCase {
        name: "Wheels"
        when: windowShown

        property Picker picker
        property WheelPicker wheels

        function numbers(from, to) {
            const titles = [];
            for (let number = from; number <= to; ++number)
                titles.push(String(number));
            return titles;
        }
        function selected() {
            return picker.components.map(component => component.selectedRow);
        }
        function init() {
            failOnWarning(/.?/);
            Appearance.motion = false;
            picker = Samples.picker([numbers(40, 190), numbers(0, 9)], [30, 5]);
            wheels = createTemporaryObject(wheelComponent, scene, { picker: picker });
            spy.target = picker;
            spy.clear();
            wheels.forceActiveFocus();
            wait(20);
        }
        function cleanupTestCase() {
            Appearance.motion = true;
        }

        function test_keys_data() {
            return [
                { tag: "down", keys: [Qt.Key_Down], row: 31 },
                { tag: "up", keys: [Qt.Key_Up, Qt.Key_Up], row: 28 },
                { tag: "a page", keys: [Qt.Key_PageDown], row: 35 },
                { tag: "first", keys: [Qt.Key_Home], row: 0 },
                { tag: "not before the first", keys: [Qt.Key_Home, Qt.Key_Up], row: 0 },
                { tag: "last", keys: [Qt.Key_End], row: 150 },
                { tag: "not after the last", keys: [Qt.Key_End, Qt.Key_PageDown], row: 150 },
                { tag: "typed", keys: [Qt.Key_1, Qt.Key_2, Qt.Key_5], row: 85 },
            ];
        }
        function test_keys(data) {
            data.keys.forEach(key => keyClick(key));
            compare(selected(), [data.row, 5]);
        }

        function test_arrowsLeadToTheNextWheel() {
            keyClick(Qt.Key_Right);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Right);
            keyClick(Qt.Key_Down);
            compare(selected(), [30, 7]);
            keyClick(Qt.Key_Left);
            keyClick(Qt.Key_Up);
            compare(selected(), [29, 7]);
            compare(spy.count, 3);
        }

        function test_mouseWheelTurnsOneRowAStep() {
            const x = wheels.width / 2 - 40;
            mouseWheel(wheels, x, wheels.height / 2, 0, -120);
            compare(selected(), [31, 5]);
            mouseWheel(wheels, x, wheels.height / 2, 0, 60);
            compare(selected(), [31, 5]);
            mouseWheel(wheels, x, wheels.height / 2, 0, 60);
            compare(selected(), [30, 5]);
        }

        function test_touchOnANeighbourChoosesIt() {
            const row = wheels.height / 5;
            mouseClick(wheels, wheels.width / 2 - 40, wheels.height / 2 + row);
            tryVerify(() => selected()[0] === 31);
        }

        function test_theStandingRowCanBeChosen_data() {
            return [
                { tag: "touch", choose: () => mouseClick(wheels, wheels.width / 2 - 40, wheels.height / 2), count: 1 },
                { tag: "Return", choose: () => keyClick(Qt.Key_Return), count: 1 },
                { tag: "Enter", choose: () => keyClick(Qt.Key_Enter), count: 1 },
                { tag: "typed", choose: () => [Qt.Key_7, Qt.Key_0].forEach(key => keyClick(key)), count: 2 },
                { tag: "nothing", choose: () => picker.shouldSettle(), count: 0 },
            ];
        }
        function test_theStandingRowCanBeChosen(data) {
            data.choose();
            tryCompare(spy, "count", data.count);
            wait(50);
            compare(spy.count, data.count);
            compare(selected(), [30, 5]);
        }

        function test_nothingIsChosenBeyondTheEnd() {
            keyClick(Qt.Key_Home);
            spy.clear();
            keyClick(Qt.Key_Up);
            compare(spy.count, 0);
        }

        function test_aTurningWheelHasChosenWhenItGoes_data() {
            return [
                { tag: "closed", go: () => picker.shouldSettle() },
                { tag: "destroyed", go: () => wheels.destroy() },
            ];
        }
        function test_aTurningWheelHasChosenWhenItGoes(data) {
            const x = wheels.width / 2 - 40;
            const y = wheels.height / 2;
            const row = wheels.height / 5;
            mousePress(scene, x, y);
            for (let step = 1; step <= 10; ++step)
                mouseMove(scene, x, y - step * row * 0.24, 40);
            compare(spy.count, 0);
            data.go();
            tryCompare(spy, "count", 1);
            verify(selected()[0] >= 31 && selected()[0] <= 33, "row " + selected()[0]);
            compare(selected()[1], 5);
            mouseRelease(scene, x, y - row * 2.4);
        }

        function test_dragSnapsToARow() {
            const x = wheels.width / 2 - 40;
            const row = wheels.height / 5;
            mousePress(wheels, x, wheels.height / 2);
            for (let step = 1; step <= 10; ++step)
                mouseMove(wheels, x, wheels.height / 2 - step * row * 0.24, 40);
            wait(150);
            mouseRelease(wheels, x, wheels.height / 2 - row * 2.4);
            tryVerify(() => spy.count > 0);
            const row0 = selected()[0];
            verify(row0 >= 31 && row0 <= 33, "row " + row0);
            compare(selected()[1], 5);
        }

        function test_aWheelThatIsTurnedTakesTheKeys_data() {
            const x = 155;
            const drag = () => {
                mousePress(wheels, x, wheels.height / 2);
                for (let step = 1; step <= 10; ++step)
                    mouseMove(wheels, x, wheels.height / 2 - step * 8, 10);
            };
            return [
                { tag: "dragged", turn: drag, end: () => mouseRelease(wheels, x, wheels.height / 2 - 80) },
                { tag: "mouse wheel", turn: () => mouseWheel(wheels, x, wheels.height / 2, 0, -120), end: () => {} },
            ];
        }
        function test_aWheelThatIsTurnedTakesTheKeys(data) {
            let rowThen = -1;
            const leave = () => rowThen = selected()[0];
            field.forceActiveFocus();
            field.activeFocusChanged.connect(leave);
            data.turn();
            field.activeFocusChanged.disconnect(leave);
            compare(rowThen, 30, "before anything is chosen");
            data.end();
            tryVerify(() => selected()[0] > 30);
            keyClick(Qt.Key_Home);
            compare(selected(), [0, 5]);
        }

        function test_followsTheProgram() {
            const again = Samples.picker([["a", "b", "c"]], [2]);
            wheels.picker = again;
            compare(again.components[0].selectedRow, 2);
            again.components[0].select(0);
            keyClick(Qt.Key_Down);
            compare(again.components[0].selectedRow, 1);
        }
    }
}
