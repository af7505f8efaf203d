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
        verify(test.item("heroSentence").text.startsWith(test.said("You can safely free {size}", { size: "…" }).split("…")[0]));
        verify(stage.exists(".cache/pip/http/three"));
    }

    function test_3_aFindingShowsWhatItHolds() {
        test.clickOn("finding-caches");
        compare(test.row("findingEntries", 0).name, "spotify");
        compare(test.row("findingEntries", 1).name, "mesa_shader_cache");
        compare(test.item("findingEntries").count, 2);
        verify(test.item("selectedText").text.startsWith(test.selectedOf(1, 2)));
    }

    function test_4_thePointerChoosesAndLooksIntoEntries() {
        test.clickOn("check", test.row("findingEntries", 0));
        verify(test.item("selectedText").text.startsWith(test.selectedOf(2, 2)));
        test.clickOn("check", test.row("findingEntries", 1));
        verify(test.item("selectedText").text.startsWith(test.selectedOf(1, 2)));
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
        compare(test.item("reviewLead").text, Strings.reviewLead(2));
        const names = [0, 1, 2, 3].map(number => test.row("planEntries", number).name);
        compare(names, [test.said("App caches"), "spotify", test.said("pip cache"), "pip"]);
        verify(!test.isShown("findingEntries"));
        test.clickOn("check", test.row("planEntries", 0));
        compare(test.item("reviewLead").text, Strings.reviewLead(1));
        test.clickOn("check", test.row("planEntries", 1));
        compare(test.item("reviewLead").text, Strings.reviewLead(2));
        verify(stage.exists(".cache/pip/http/three"));
    }

    function test_6_theCleanUpMovesTheChosenToTheTrash() {
        test.clickOn("primaryAction");
        test.item("cleaningDone");
        compare(test.item("cleaningTitle").text, test.moved(2));
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
        test.hasRows("recordItems", 2);
        test.clickOn("restoreButton");
        tryCompare(test.item("notice"), "text", test.restored(2));
        verify(stage.exists(".cache/pip/http/three"));
        verify(stage.exists(".cache/spotify/Data/one"));
        verify(!stage.isInTrash("pip"));
        compare(test.item("restoreButton").enabled, false);
    }
}
