import QtQuick
import QtTest
import Orlen.App

/// Tab leads through every screen and sheet and back again: what has the keyboard is seen, marked and named, and
/// a sheet that closes gives it back.
Journey {
    id: test

    name: "Tab"

    function focused(): Item {
        return test.window.activeFocusItem;
    }

    /// Presses Tab until it begins anew, then back. Again where what is shown was still being completed meanwhile.
    function goAround(where: string) {
        let fault = test.faultOnTheWay();
        for (let again = 0; again < 3 && fault !== ""; ++again) {
            wait(500);
            fault = test.faultOnTheWay();
        }
        compare(fault, "", where);
    }

    function faultOnTheWay(): string {
        keyClick(Qt.Key_Tab);
        const way = [test.focused()];
        let fault = stage.focusFault(test.window);
        for (let presses = 0; presses < 80 && fault === ""; ++presses) {
            keyClick(Qt.Key_Tab);
            if (test.focused() === way[0])
                break;
            way.push(test.focused());
            fault = stage.focusFault(test.window);
        }
        if (fault === "" && test.focused() !== way[0])
            fault = "no end";
        for (let step = way.length - 1; step >= 0 && fault === ""; --step) {
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
            if (test.focused() !== way[step])
                fault = "back to " + way[step] + ", not " + test.focused();
            else
                fault = stage.focusFault(test.window);
        }
        return fault;
    }

    function everyScreen() {
        for (let screen = Screens.Home; screen <= Screens.Safety; ++screen) {
            keyClick(Qt.Key_1 + screen, Qt.ControlModifier);
            waitForRendering(test.window.contentItem, 300);
            test.goAround(Screens.title(screen));
        }
    }

    /// A sheet that Enter opens: around in it, and out again.
    function goAroundSheet(begin: string, where: string) {
        const before = test.focused();
        keyClick(Qt.Key_Return);
        test.item(begin);
        tryVerify(() => test.isFocused(begin), 2000, where + " begins with " + begin);
        test.goAround(where);
        keyClick(Qt.Key_Escape);
        tryVerify(() => test.focused() === before, 2000, where + " gives the keyboard back to " + before);
        compare(stage.focusFault(test.window), "", "after " + where);
    }

    function test_1_beforeAScan() {
        test.item("continue");
        test.goAround("onboarding");
        test.window.navigation.finishOnboarding();
        test.item("startScan");
        test.window.width = test.window.minimumWidth;
        test.window.height = test.window.minimumHeight;
        test.everyScreen();
    }

    function test_2_afterAScan() {
        keyClick(Qt.Key_R, Qt.ControlModifier);
        test.item("heroSentence");
        test.everyScreen();
    }

    function test_3_aFinding() {
        keyClick(Qt.Key_1, Qt.ControlModifier);
        test.tabTo("findings");
        keyClick(Qt.Key_Home);
        for (let steps = 0; steps < 10 && !test.isFocused("finding-caches"); ++steps)
            keyClick(Qt.Key_Right);
        test.goAroundSheet("findingEntries", "a finding");
    }

    function test_4_theReview() {
        test.tabTo("reviewAndClean");
        test.goAroundSheet("planEntries", "the review");
    }

    function test_5_theShortcuts() {
        test.tabTo("reviewAndClean");
        const before = test.focused();
        keyClick(Qt.Key_F1);
        tryVerify(() => test.isFocused("shortcutKeys"));
        test.goAround("the shortcuts");
        keyClick(Qt.Key_F1);
        keyClick(Qt.Key_Escape);
        tryVerify(() => test.focused() === before);
    }

    function test_6_anApplication() {
        keyClick(Qt.Key_6, Qt.ControlModifier);
        test.row("appList", 0);
        keyClick(Qt.Key_F, Qt.ControlModifier);
        test.type("sketch");
        tryVerify(() => test.row("appList", 0).name === "Sketcher");
        test.tabTo("appList");
        test.goAroundSheet("leftoverList", "an application");
    }

    function test_7_aCategory() {
        keyClick(Qt.Key_1, Qt.ControlModifier);
        test.tabTo("storageRing");
        keyClick(Qt.Key_Right);
        test.goAroundSheet("categoryContent", "a category");
    }

    function test_8_aSetOfPhotos() {
        keyClick(Qt.Key_2, Qt.ControlModifier);
        test.tabTo("showAll");
        keyClick(Qt.Key_Return);
        test.item("photoSets");
        tryVerify(() => test.isShown("photoSet") && test.item("photoSet").itemAtIndex(1) !== null);
        test.goAround("sets of photos");
        test.tabTo("photoSet");
        keyClick(Qt.Key_Right);
        test.goAroundSheet("compareContent", "two photos");
    }

    function test_9_theEndOfACleanUp() {
        keyClick(Qt.Key_1, Qt.ControlModifier);
        test.tabTo("reviewAndClean");
        keyClick(Qt.Key_Return);
        test.tabTo("primaryAction");
        keyClick(Qt.Key_Return);
        test.item("cleaningDone");
        test.goAround("the end of a clean-up");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("cleaningDone"));
        // The button that began it is off, as nothing is left to clean.
        tryVerify(() => !test.item("reviewAndClean").enabled);
        tryVerify(() => stage.focusFault(test.window) === "", 5000, stage.focusFault(test.window));
        verify(!test.isFocused("sidebar"), "the keyboard stays on the page");
    }

    function test_9a_whatIsDisabledGivesTheKeyboardOn() {
        for (let screen = Screens.Home; screen <= Screens.Safety; ++screen) {
            keyClick(Qt.Key_1 + screen, Qt.ControlModifier);
            waitForRendering(test.window.contentItem, 300);
            keyClick(Qt.Key_Tab);
            const before = test.focused();
            before.enabled = false;
            tryVerify(() => test.focused() !== before && stage.focusFault(test.window) === "", 5000,
                      Screens.title(screen) + ": " + stage.focusFault(test.window));
            before.enabled = true;
        }
    }

    function test_9b_aPastCleanUp() {
        keyClick(Qt.Key_8, Qt.ControlModifier);
        test.tabTo("historyList");
        keyClick(Qt.Key_Return);
        test.tabTo("recordItems");
        test.goAround("a past clean-up");
        test.tabTo("restoreButton");
        test.tabTo("recordItems");
    }
}
