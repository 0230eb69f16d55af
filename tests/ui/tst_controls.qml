import QtQuick
import QtTest
import Kesto
import KestoTest

/*! Buttons and scroll bars by themselves, in a page that can be flicked. */
Item {
    id: scene

    width: 390
    height: 844

    Flickable {
        id: page

        width: 300
        height: 400
        contentWidth: width
        contentHeight: 4 * height
        boundsBehavior: Flickable.StopAtBounds

        ScrollBar { view: page }
        Pressable {
            id: button

            y: 100
            width: 100
            height: 44
            Accessible.name: "one"
        }
        Pressable {
            id: other

            x: 120
            y: 100
            width: 100
            height: 44
        }
    }
    Flickable {
        id: strip

        y: 500
        width: 300
        height: 60
        leftMargin: 20
        rightMargin: 20
        contentWidth: 1160
        contentHeight: height

        ScrollBar {
            view: strip
            upright: false
        }
    }
    SignalSpy {
        id: clicks

        target: button
        signalName: "clicked"
    }
    SignalSpy {
        id: otherClicks

        target: other
        signalName: "clicked"
    }

    TestCase {
        name: "Controls"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
            page.contentY = 0;
            page.contentHeight = 4 * page.height;
            strip.contentX = -strip.leftMargin;
            for (const each of [button, other]) {
                each.enabled = true;
                each.visible = true;
                each.focusPolicy = Qt.StrongFocus;
                each.focus = false;
            }
            clicks.clear();
            otherClicks.clear();
        }
        function repeatKey(key) {
            Samples.repeatKey(scene.Window.window, key);
        }

        function test_aPointer_data() {
            const press = () => mousePress(button, 50, 22), to = (x, y) => mouseMove(button, x, y), leave = (x, y) => mouseRelease(button, x, y);
            return [
                { tag: "in and let go", steps: [[press, true], [() => leave(50, 22), false]], clicks: 1 },
                { tag: "the last of it", steps: [[() => mousePress(button, 99, 43), true], [() => leave(99, 43), false]], clicks: 1 },
                { tag: "let go beside", steps: [[press, true], [() => to(101, 22), false], [() => leave(101, 22), false]], clicks: 0 },
                { tag: "out and back", steps: [[press, true], [() => to(104, 22), false], [() => to(90, 22), true], [() => leave(90, 22), false]], clicks: 1 },
                { tag: "from outside", steps: [[() => mousePress(button, 110, 22), false], [() => to(50, 22), false], [() => leave(50, 22), false]], clicks: 0 },
                { tag: "another button of the mouse", steps: [[() => mousePress(button, 50, 22, Qt.RightButton), false], [() => mouseRelease(button, 50, 22, Qt.RightButton), false]], clicks: 0 },
                { tag: "disabled while it is held", steps: [[press, true], [() => button.enabled = false, false], [() => leave(50, 22), false]], clicks: 0 },
                { tag: "hidden while it is held", steps: [[press, true], [() => button.visible = false, false], [() => leave(50, 22), false]], clicks: 0 },
                { tag: "two quick ones", steps: [[() => mouseDoubleClickSequence(button, 50, 22), false]], clicks: 2 },
            ];
        }
        function test_aPointer(data) {
            for (const [step, down] of data.steps) {
                step();
                compare(button.down, down);
            }
            compare(clicks.count, data.clicks);
            compare(otherClicks.count, 0);
            button.enabled = button.visible = true;
            mouseClick(button, 50, 22);
            compare(clicks.count, data.clicks + 1);
        }

        function test_aFlickTakesThePressAway_data() {
            return [
                { tag: "of the mouse", press: y => mousePress(page, 50, y), to: y => mouseMove(page, 50, y), leave: y => mouseRelease(page, 50, y) },
                {
                    tag: "of a finger",
                    press: y => touchEvent(page).press(1, page, 50, y).commit(),
                    to: y => touchEvent(page).move(1, page, 50, y).commit(),
                    leave: y => touchEvent(page).release(1, page, 50, y).commit()
                },
            ];
        }
        function test_aFlickTakesThePressAway(data) {
            data.press(120);
            verify(button.down);
            for (let y = 116; y >= 60; y -= 8) {
                data.to(y);
                wait(20); // the movements of a finger are gathered until the next picture
            }
            verify(page.contentY > 0);
            verify(!button.down);
            data.leave(60);
            compare(clicks.count, 0);
            page.cancelFlick();
        }

        function test_twoFingersPressTwo() {
            const fingers = touchEvent(page);
            fingers.press(1, button, 50, 22).commit();
            verify(button.down);
            fingers.stationary(1).press(2, other, 50, 22).commit();
            verify(button.down && other.down);
            fingers.release(1, button, 50, 22).stationary(2).commit();
            compare([clicks.count, otherClicks.count], [1, 0]);
            fingers.move(2, other, 50, 60).commit();
            tryCompare(other, "down", false);
            fingers.release(2, other, 50, 60).commit();
            compare([clicks.count, otherClicks.count], [1, 0]);
        }

        function test_keys_data() {
            const press = key => () => keyPress(key), leave = key => () => keyRelease(key), again = key => () => repeatKey(key);
            const space = Qt.Key_Space;
            return [
                { tag: "Space", steps: [[press(space), true, 0], [leave(space), false, 1]] },
                { tag: "Space held", steps: [[press(space), true, 0], [again(space), true, 0], [again(space), true, 0], [leave(space), false, 1]] },
                { tag: "Space pressed before", steps: [[again(space), false, 0], [leave(space), false, 0]] },
                { tag: "Return", steps: [[press(Qt.Key_Return), false, 1], [again(Qt.Key_Return), false, 1], [leave(Qt.Key_Return), false, 1]] },
                { tag: "Enter", steps: [[press(Qt.Key_Enter), false, 1], [leave(Qt.Key_Enter), false, 1]] },
                { tag: "Return pressed before", steps: [[again(Qt.Key_Return), false, 0], [leave(Qt.Key_Return), false, 0]] },
                { tag: "Space, then disabled", steps: [[press(space), true, 0], [() => button.enabled = false, false, 0], [leave(space), false, 0]] },
                { tag: "Space while the mouse holds it", steps: [[() => mousePress(button, 50, 22), true, 0], [press(space), true, 0], [leave(space), true, 0], [() => mouseRelease(button, 50, 22), false, 1]] },
            ];
        }
        function test_keys(data) {
            button.forceActiveFocus(Qt.TabFocusReason);
            for (const [step, down, count] of data.steps) {
                step();
                compare(button.down, down);
                compare(clicks.count, count);
            }
        }

        function test_SpaceIsNotForAButtonThatCameMeanwhile() {
            button.forceActiveFocus(Qt.TabFocusReason);
            keyPress(Qt.Key_Space);
            other.forceActiveFocus(Qt.OtherFocusReason);
            verify(!button.down);
            repeatKey(Qt.Key_Space);
            verify(!other.down);
            keyRelease(Qt.Key_Space);
            compare([clicks.count, otherClicks.count], [0, 0]);
            keyClick(Qt.Key_Space);
            compare([clicks.count, otherClicks.count], [0, 1]);
        }

        function test_disabledItHearsNothing() {
            button.enabled = false;
            mouseClick(button, 50, 22);
            button.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            keyClick(Qt.Key_Return);
            Samples.pressAccessibly(button);
            compare(clicks.count, 0);
        }

        function test_thoseWhoDoNotSeeItPressIt() {
            Samples.pressAccessibly(button);
            compare(clicks.count, 1);
        }

        function test_howTheKeysCome_data() {
            return [
                { tag: "anyhow", policy: Qt.StrongFocus, tab: true, touch: true },
                { tag: "by Tab", policy: Qt.TabFocus, tab: true, touch: false },
                { tag: "by a touch", policy: Qt.ClickFocus, tab: false, touch: true },
                { tag: "never", policy: Qt.NoFocus, tab: false, touch: false },
            ];
        }
        function test_howTheKeysCome(data) {
            other.focusPolicy = data.policy;
            button.forceActiveFocus(Qt.OtherFocusReason);
            verify(!button.visualFocus);
            mouseClick(other, 50, 22);
            compare(other.activeFocus, data.touch);
            verify(!other.visualFocus);
            button.forceActiveFocus(Qt.OtherFocusReason);
            keyClick(Qt.Key_Tab);
            compare(other.activeFocus, data.tab);
            compare(other.visualFocus, data.tab);
        }
        function test_theRingGoesWithAPressOfTheMouse() {
            for (const reason of [Qt.TabFocusReason, Qt.BacktabFocusReason, Qt.ShortcutFocusReason]) {
                button.focus = false;
                button.forceActiveFocus(reason);
                verify(button.visualFocus);
                mouseClick(button, 50, 22);
                verify(button.activeFocus && !button.visualFocus);
            }
        }

        // The bars have 400 and 300 less their rims of 2 at each end; of the page a quarter is in sight.
        function test_theHandleIsDragged() {
            const bar = barOf(page);
            compare(bar.width, 8);
            mousePress(page, 296, 50);
            mouseMove(page, 296, 60);
            mouseMove(page, 296, 149);
            fuzzyCompare(page.contentY, 1600 * 99 / 396, 0.01);
            mouseMove(page, 200, 390);
            compare(page.contentY, 1200);
            mouseMove(page, 296, -100);
            compare(page.contentY, 0);
            mouseRelease(page, 296, 149);
            fuzzyCompare(page.contentY, 400, 0.01);
            mouseMove(page, 296, 300);
            fuzzyCompare(page.contentY, 400, 0.01);
            compare([clicks.count, page.dragging], [0, false]);
        }
        function test_aPressBesideTheHandleBringsItThere() {
            mouseClick(page, 296, 299);
            fuzzyCompare(page.contentY, 1000, 0.01);
            mouseClick(page, 296, 1);
            compare(page.contentY, 0);
        }
        function test_aBarThatLies() {
            const handle = barOf(strip).children[0];
            fuzzyCompare(handle.x, 2, 0.01);
            fuzzyCompare(handle.width, 296 / 4, 0.01);
            mousePress(strip, 20, 56);
            mouseMove(strip, 20 + 111, 56);
            mouseRelease(strip, 20 + 111, 56);
            fuzzyCompare(strip.contentX, -20 + 1200 * 111 / 296, 0.01);
            mouseMove(strip, 290, 56);
            fuzzyCompare(handle.x, 2 + 111, 0.01);
        }
        function test_theHandleStaysLargeEnoughToTake() {
            const handle = barOf(page).children[0];
            page.contentHeight = 100 * page.height;
            fuzzyCompare(handle.height, 0.08 * 396, 0.01);
            page.contentY = 99 * page.height;
            fuzzyCompare(handle.y + handle.height, 398, 0.01);
            page.contentHeight = page.height;
            page.contentY = 0;
            verify(!barOf(page).visible);
        }
        function test_itShowsWhileSomethingMovesAndUnderAPointer() {
            Appearance.motion = false;
            const handle = barOf(page).children[0];
            mouseMove(page, 50, 300);
            tryCompare(handle, "opacity", 0);
            mousePress(page, 50, 300);
            for (let y = 292; y >= 200; y -= 8)
                mouseMove(page, 50, y);
            verify(page.moving);
            verify(handle.opacity > 0.5);
            mouseRelease(page, 50, 200);
            page.cancelFlick();
            tryCompare(handle, "opacity", 0);
            mouseMove(page, 296, 300);
            verify(handle.opacity > 0.5);
            mouseMove(page, 50, 300);
            tryCompare(handle, "opacity", 0);
            Appearance.motion = true;
        }
        function barOf(view) {
            return Array.from(view.children).find(child => child.view === view);
        }
    }
}
