import QtQuick
import QtTest
import Orlen.App

/// A new user: the first start, a scan, a clean-up with one item left out, and the way back.
Journey {
    id: test

    name: "FirstStart"

    function initTestCase() {
        test.open();
    }

    function cleanupTestCase() {
        test.shut();
    }

    function test_1_onboardingIsShownOnce() {
        compare(test.window.navigation.onboarded, false);
        test.clickOn("continue");
        compare(test.window.navigation.onboarded, true);
        test.item("startScan");
    }

    function test_2_aScanRatesWhatItFinds() {
        test.clickOn("startScan");
        test.item("finding-caches");
        verify(test.item("heroSentence").text.startsWith("You can safely free "));
    }

    function test_3_whatIsUntickedInAFindingIsNotInTheReview() {
        test.clickOn("finding-caches");
        const rows = test.item("findingEntries");
        tryCompare(rows, "count", 3);
        const before = test.item("selectedText").text;
        keyClick(Qt.Key_Tab);
        test.item("entryCheck-0");
        test.clickOn("entryCheck-0");
        verify(test.item("selectedText").text !== before);
        test.clickOn("primaryAction");
        tryVerify(() => test.item("reviewLead").text.startsWith("2 items will be moved to the Trash."));
    }

    function test_4_theCleanUpMovesTheRestToTheTrash() {
        test.clickOn("confirmPlan");
        tryVerify(() => test.item("cleaningTitle").text === "2 moved to the Trash", 10000);
        verify(stage.exists(".cache/spotify"));
        verify(!stage.exists(".cache/pip"));
        verify(stage.isInTrash("pip"));
        test.clickOn("cleaningDone");
        tryCompare(test.window.navigation, "cleaning", false);
    }

    function test_5_historyPutsEverythingBack() {
        keyClick(Qt.Key_8, Qt.ControlModifier);
        compare(test.window.navigation.screen, Navigation.History);
        test.clickOn("restoreButton");
        tryVerify(() => stage.exists(".cache/pip"), 10000);
        verify(!stage.isInTrash("pip"));
        verify(test.item("historyToast").message === "Restored 2 items.");
    }
}
