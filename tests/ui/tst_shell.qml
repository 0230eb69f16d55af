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

        function openTablet(landscape) {
            stage.width = landscape ? 840 : 620;
            stage.height = landscape ? 620 : 840;
            const split = Samples.openSplit();
            stage.forceActiveFocus();
            wait(20);
            return split;
        }
        function itemOf(controller) {
            return stage.all(stage, item => item.hasOwnProperty("panelWidth") === false && item.hasOwnProperty("controller") && item.controller === controller)[0];
        }

        function test_theKeysStayWithWhatIsInFront_data() {
            const search = () => keyClick(Qt.Key_F, Qt.ControlModifier);
            const turn = () => {
                stage.width = 840;
                stage.height = 620;
            };
            const phone = () => Samples.openList();
            const tablet = () => openTablet(false).menuPopoverOpen = true;
            return [
                { tag: "search under the lock", open: phone, cover: () => Samples.lock(), then: search },
                { tag: "search under an alert", open: phone, cover: () => Samples.ask(), then: search },
                { tag: "search under a bubble", open: phone, cover: () => Samples.openPopover(), then: search },
                { tag: "a tablet turned under the lock", open: tablet, cover: () => Samples.lock(), then: turn },
                { tag: "a tablet turned under an alert", open: tablet, cover: () => Samples.ask(), then: turn },
                { tag: "a screen that comes under an alert", open: phone, cover: () => Samples.ask(), then: () => Samples.present() },
                { tag: "a screen that comes under the lock", open: phone, cover: () => Samples.lock(), then: () => Samples.present() },
            ];
        }
        function test_theKeysStayWithWhatIsInFront(data) {
            data.open();
            stage.forceActiveFocus();
            data.cover();
            wait(20);
            const before = stage.Window.activeFocusItem;
            data.then();
            wait(20);
            compare(stage.Window.activeFocusItem, before);
        }

        function test_searchIsOfTheMenuWhileItIsOpen() {
            Samples.openList();
            stage.forceActiveFocus();
            Samples.menu().menuOpen = true;
            wait(20);
            keyClick(Qt.Key_F, Qt.ControlModifier);
            verify(stage.Window.activeFocusItem.placeholderText !== undefined);
            verify(focusInside(itemOf(Samples.menu().leftMenuViewController)));
        }

        function test_theKeysComeBackFromWhatGoes_data() {
            return [
                { tag: "the upper of two presented screens", open: () => {
                    const below = Samples.present();
                    wait(20);
                    Samples.present();
                    wait(20);
                    keyClick(Qt.Key_Escape);
                    return below;
                } },
                { tag: "the menu of a tablet that is turned", open: () => {
                    const split = openTablet(true);
                    keyClick(Qt.Key_M, Qt.ControlModifier);
                    stage.width = 620;
                    stage.height = 840;
                    return split.detail;
                } },
                { tag: "the lock, while it fades", open: () => {
                    Appearance.motion = true;
                    const lock = Samples.lock();
                    wait(20);
                    const pad = itemOf(lock);
                    Samples.unlock(true);
                    verify(pad.visible && pad.parent !== null, "it is not gone at once");
                    return table;
                } },
            ];
        }
        function test_theKeysComeBackFromWhatGoes(data) {
            const below = data.open();
            wait(50);
            verify(focusInside(itemOf(below)));
            keyClick(Qt.Key_Down);
            verify(focusInside(itemOf(below)));
            tryVerify(() => !stage.all(stage, item => item.objectName === "" && item.hasOwnProperty("keySize")).length);
        }

        function test_EscapeGoesBackWhereTheKeysAre_data() {
            return [
                { tag: "the menu of a phone", open: () => Samples.menu().menuOpen = true, isOpen: () => Samples.menu().menuOpen },
                { tag: "of a tablet", open: () => openTablet(false).menuPopoverOpen = true,
                    isOpen: () => Samples.appWindow.rootViewController.menuPopoverOpen },
                { tag: "of a tablet, docked", open: () => {
                    openTablet(true);
                    Samples.push();
                    keyClick(Qt.Key_M, Qt.ControlModifier);
                }, isOpen: () => Samples.stack().viewControllers.length === 2 },
            ];
        }
        function test_EscapeGoesBackWhereTheKeysAre(data) {
            data.open();
            const menu = Samples.pushInMenu();
            wait(20);
            keyClick(Qt.Key_Escape);
            compare(menu.viewControllers.length, 1);
            verify(data.isOpen());
            keyClick(Qt.Key_Escape);
            verify(!data.isOpen());
        }

        function test_twoQuickTouchesOpenOneThing() {
            Appearance.motion = true;
            const pushed = Samples.push();
            mouseClick(stage, 200, 110);
            wait(60);
            mouseClick(stage, 200, 110);
            compare(table.heard.concat(pushed.heard), []);
            tryVerify(() => {
                mouseClick(stage, 200, 110);
                return pushed.heard.length > 0;
            });
        }

        function test_theBarsOfAList() {
            Samples.openList();
            wait(50);
            const bar = Qt.color(Tokens.colors.bar);
            verify(Qt.colorEqual(grabImage(stage).pixel(3, Tokens.barHeight + 20), bar), "the search field stands in a bar");
            const scopes = stage.all(stage, item => item.hasOwnProperty("titles") && item.hasOwnProperty("current"))[0];
            compare(scopes.height, Tokens.barHeight);
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
            const pushed = Samples.push();
            Samples.work(true);
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_Escape);
            mouseClick(stage, 200, 110);
            compare(pushed.heard, []);
            compare(Samples.stack().viewControllers.length, 2);
            Samples.work(false);
            mouseClick(stage, 200, 110);
            compare(pushed.heard.length, 1);
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
