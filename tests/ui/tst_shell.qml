import QtQuick
import QtTest
import Kesto
import KestoTest

Item {
    id: scene

    width: 820
    height: 844

    Stage {
        id: stage

        focus: true
    }

    TestCase {
        name: "Shell"
        when: windowShown

        property SampleTable table

        function init() {
            failOnWarning(/.?/);
            Appearance.motion = false;
            table = Samples.openTable();
            stage.forceActiveFocus();
            wait(20);
        }
        function cleanup() {
            Samples.clear();
            stage.width = 390;
            stage.height = 844;
            Appearance.textScale = 1;
        }
        function cleanupTestCase() {
            Appearance.motion = true;
        }
        function focusInside(item) {
            for (let each = stage.Window.activeFocusItem; each; each = each.parent) {
                if (each === item)
                    return true;
            }
            return false;
        }
        function lists() {
            return stage.all(stage, item => item.objectName === "list");
        }

        function test_EscapeGoesBackUpTheStack() {
            Samples.push();
            Samples.push();
            compare(Samples.stack().viewControllers.length, 3);
            keyClick(Qt.Key_Escape);
            compare(Samples.stack().viewControllers.length, 2);
            keyClick(Qt.Key_Escape);
            keyClick(Qt.Key_Escape);
            compare(Samples.stack().viewControllers.length, 1);
        }

        function test_theBackButtonPops() {
            Samples.push();
            wait(20);
            mouseClick(stage, 20, 22);
            compare(Samples.stack().viewControllers.length, 1);
        }

        function test_aScreenBelowKeepsItsPlace() {
            const below = stage.tables()[0];
            below.contentY = 120;
            Samples.push();
            verify(!below.visible);
            Samples.stack().popViewController(true);
            compare(stage.tables(), [below]);
            compare(below.contentY, 120);
            verify(focusInside(below));
        }

        function test_quickChangesWhileScreensMove() {
            Appearance.motion = true;
            Samples.push();
            Samples.push();
            Samples.stack().popViewController(true);
            Samples.stack().popToRootViewController(true);
            Samples.push();
            tryVerify(() => stage.tables().length === 1 && stage.tables()[0].mapToItem(stage, 0, 0).x === 0);
            tryVerify(() => lists().length === 3); // two on the stack and the menu
            verify(focusInside(stage.tables()[0]));
        }

        function test_theMenuOpensByKeysButtonAndSwipe() {
            const menu = Samples.menu();
            keyClick(Qt.Key_M, Qt.ControlModifier);
            verify(menu.menuOpen);
            verify(focusInside(lists().find(list => list.mapToItem(stage, 0, 0).x === 0 && list.width < 350)));
            keyClick(Qt.Key_Escape);
            verify(!menu.menuOpen);

            mouseClick(stage, 22, 22);
            verify(menu.menuOpen);
            mouseClick(stage, 370, 400);
            verify(!menu.menuOpen);
            compare(table.heard, []);

            mousePress(stage, 4, 400);
            for (let x = 4; x <= 260; x += 16)
                mouseMove(stage, x, 400, 5);
            mouseRelease(stage, 260, 400);
            verify(menu.menuOpen);
            mousePress(stage, 260, 500);
            for (let x = 260; x >= 20; x -= 16)
                mouseMove(stage, x, 500, 5);
            mouseRelease(stage, 20, 500);
            verify(!menu.menuOpen);
        }

        function test_theMenuThatIsAlwaysThereGetsTheKeysAndGivesThemBack() {
            stage.width = 820;
            stage.height = 600;
            const split = Samples.openSplit();
            stage.forceActiveFocus();
            wait(20);
            verify(!split.masterHidden);
            const [menu, main] = stage.tables().sort((one, other) => one.mapToItem(stage, 0, 0).x - other.mapToItem(stage, 0, 0).x);
            verify(focusInside(main));
            keyClick(Qt.Key_M, Qt.ControlModifier);
            verify(focusInside(menu));
            keyClick(Qt.Key_M, Qt.ControlModifier);
            verify(focusInside(main));
        }

        function test_theMenuOfANarrowTabletIsWideEnough_data() {
            return [{ width: 320, least: 260 }, { width: 390, least: 280 }, { width: 600, least: 280 }];
        }
        function test_theMenuOfANarrowTabletIsWideEnough(data) {
            stage.width = data.width;
            const split = Samples.openSplit();
            verify(split.masterHidden);
            split.menuPopoverOpen = true;
            const panel = stage.all(stage, item => item.hasOwnProperty("panelWidth") && item.controller === split)[0];
            verify(panel.panelWidth >= data.least, "it has " + panel.panelWidth);
            verify(panel.panelWidth < data.width);
        }

        Component {
            id: waitPage

            WaitPage { text: "Updating Dishes Database" }
        }

        function test_theWaitPageSaysItOnOneLine_data() {
            return [{ tag: "phone", width: 390, scale: 1 }, { tag: "smallest", width: 320, scale: 1 }, { tag: "200 %", width: 320, scale: 2 }];
        }
        function test_theWaitPageSaysItOnOneLine(data) {
            Appearance.textScale = data.scale;
            const page = createTemporaryObject(waitPage, scene, { width: data.width, height: 480 });
            const label = stage.all(page, item => item.hasOwnProperty("lineCount"))[0];
            compare(label.text, page.text);
            compare(label.lineCount, 1);
            verify(!label.truncated);
            verify(label.paintedWidth <= label.width + 1);
        }

        function test_aPresentedScreenCoversAndEscapeLeavesIt() {
            const below = stage.tables()[0];
            Samples.present();
            tryVerify(() => !below.visible);
            verify(!focusInside(below));
            keyClick(Qt.Key_Escape);
            tryVerify(() => below.visible);
            verify(focusInside(below));
        }

        function test_aPopoverTakesTheKeysAndGivesThemBack() {
            const before = stage.Window.activeFocusItem;
            Samples.openPopover();
            compare(Samples.appWindow.popovers.length, 1);
            verify(stage.Window.activeFocusItem !== before);
            keyClick(Qt.Key_Escape);
            compare(Samples.appWindow.popovers.length, 0);
            compare(stage.Window.activeFocusItem, before);
            Samples.openPopover();
            mouseClick(stage, 385, 840);
            compare(Samples.appWindow.popovers.length, 0);
        }

        function test_theLockLetsNothingThrough() {
            const screen = Samples.lock();
            const held = Samples.answers.length;
            Samples.ask();
            mouseClick(stage, 200, 110);
            keyClick(Qt.Key_Escape);
            keyClick(Qt.Key_M, Qt.ControlModifier);
            verify(Samples.appWindow.lockScreen !== null);
            verify(!Samples.menu().menuOpen);
            compare(table.heard, []);
            compare(Samples.answers.length, held);
            keyClick(Qt.Key_1);
            keyClick(Qt.Key_2);
            compare(screen.enteredLength, 2);
            keyClick(Qt.Key_Backspace);
            compare(screen.enteredLength, 1);
            Samples.unlock();
            keyClick(Qt.Key_Return);
            compare(Samples.answers, ["Yes"]);
        }

        function test_progressHoldsTheKeys() {
            Samples.work(true);
            keyClick(Qt.Key_Return);
            mouseClick(stage, 200, 110);
            compare(table.heard, []);
            Samples.work(false);
            mouseClick(stage, 200, 110);
            compare(table.heard.length, 1);
        }

        function test_searchNarrowsAndEscapeEndsIt() {
            const screen = Samples.openList();
            stage.forceActiveFocus();
            const list = stage.tables()[0];
            const all = list.count;
            keyClick(Qt.Key_F, Qt.ControlModifier);
            "age".split("").forEach(letter => keyClick(letter));
            compare(screen.searchText, "age");
            verify(list.count < all && list.count > 0);
            keyClick(Qt.Key_Escape);
            compare(screen.searchText, "");
            compare(list.count, all);
        }

        function test_aTabletIsOneByItsShorterSide() {
            stage.width = 820;
            compare(Samples.appWindow.isTablet, true);
            stage.width = 390;
            compare(Samples.appWindow.isTablet, false);
        }
    }
}
