import QtQuick
import QtTest
import Orlen.App

/// A new user: the first start, a scan, a clean-up with one item left out, and the way back.
Journey {
    id: test

    name: "FirstStart"

    function test_1_onboardingIsShownOnce() {
        compare(test.window.navigation.onboarded, false);
        test.clickOn("continue");
        compare(test.window.navigation.onboarded, true);
        test.item("startScan");
        verify(!test.isShown("continue"));
    }

    function test_2_aScanRatesWhatItFinds() {
        test.clickOn("startScan");
        test.item("finding-caches");
        verify(test.item("heroSentence").text.startsWith("You can safely free "));
        verify(stage.exists(".cache/pip/http/three"));
    }

    function test_3_aFindingShowsWhatItHolds() {
        test.clickOn("finding-caches");
        compare(test.row("findingEntries", 0).name, "spotify");
        compare(test.row("findingEntries", 1).name, "mesa_shader_cache");
        compare(test.item("findingEntries").count, 2);
        verify(test.item("selectedText").text.startsWith("1 of 2 selected"));
    }

    function test_4_thePointerChoosesAndLooksIntoEntries() {
        test.clickOn("check", test.row("findingEntries", 0));
        verify(test.item("selectedText").text.startsWith("2 of 2 selected"));
        test.clickOn("check", test.row("findingEntries", 1));
        verify(test.item("selectedText").text.startsWith("1 of 2 selected"));
        test.click(test.row("findingEntries", 1));
        compare(test.item("findingEntries").currentIndex, 1);
        mouseMove(test.row("findingEntries", 0));
        test.clickOn("look", test.row("findingEntries", 0));
        test.item("previewArea");
        test.clickOn("closeSheet");
        tryVerify(() => !test.isShown("previewArea"));
    }

    function test_5_theReviewShowsWhatTheDetailSelected() {
        test.clickOn("primaryAction");
        verify(test.item("reviewLead").text.startsWith("2 items will be moved to the Trash."));
        const names = [0, 1, 2, 3].map(number => test.row("planEntries", number).name);
        compare(names, ["App caches", "spotify", "pip cache", "pip"]);
        verify(!test.isShown("findingEntries"));
        test.clickOn("check", test.row("planEntries", 0));
        verify(test.item("reviewLead").text.startsWith("1 items will be moved to the Trash."));
        test.clickOn("check", test.row("planEntries", 1));
        verify(test.item("reviewLead").text.startsWith("2 items will be moved to the Trash."));
        verify(stage.exists(".cache/pip/http/three"));
    }

    function test_6_theCleanUpMovesTheChosenToTheTrash() {
        test.clickOn("primaryAction");
        test.item("cleaningDone");
        compare(test.item("cleaningTitle").text, "2 moved to the Trash");
        verify(stage.exists(".cache/mesa_shader_cache/two"));
        verify(!stage.exists(".cache/pip"));
        verify(!stage.exists(".cache/spotify"));
        verify(stage.isInTrash("pip"));
        verify(stage.isInTrash("spotify"));
        test.clickOn("cleaningDone");
        tryVerify(() => !test.isShown("cleaningTitle"));
    }

    function test_7_historyPutsEverythingBack() {
        keyClick(Qt.Key_8, Qt.ControlModifier);
        compare(test.window.navigation.screen, Screens.History);
        test.clickOn("unfoldButton");
        tryCompare(test.item("recordItems"), "count", 2);
        test.clickOn("restoreButton");
        compare(test.item("notice").text, "Restored 2 items.");
        verify(stage.exists(".cache/pip/http/three"));
        verify(stage.exists(".cache/spotify/Data/one"));
        verify(!stage.isInTrash("pip"));
        compare(test.item("restoreButton").enabled, false);
    }
}
