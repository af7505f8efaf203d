import QtQuick
import QtTest
import Orlen.App

/// The page of results: what is selected, how old it is, and the ways back to the start and to another scan.
Journey {
    id: test

    name: "Results"

    function initTestCase() {
        test.openOnboarded();
    }

    function test_0_escapeDoesNotCancelAScan() {
        stage.setRecognizing(false);
        test.clickOn("startScan");
        test.item("cancelScan");
        verify(test.item("scanShare").value >= 0);
        keyClick(Qt.Key_Escape);
        wait(200);
        verify(test.item("cancelScan").enabled, "the scan goes on");
        test.clickOn("cancelScan");
        stage.setRecognizing(true);
        test.clickOn("startScan");
        test.item("heroSentence");
    }

    function test_1_theSelectionStandsBesideWhatIsSafe() {
        const all = test.item("selectedTotal").text;
        verify(all !== Strings.nothingSelected);
        verify(!test.isShown("selectSafe"));
        test.clickOn("finding-caches");
        test.row("findingEntries", 1);
        test.item("findingEntries").forceActiveFocus();
        keyClick(Qt.Key_A, Qt.ControlModifier | Qt.ShiftModifier);
        keyClick(Qt.Key_Escape);
        tryVerify(() => test.item("selectedTotal").text !== all);
        test.clickOn("selectSafe");
        tryCompare(test.item("selectedTotal"), "text", all);
        verify(!test.isShown("selectSafe"));
    }

    function test_2_anotherSizeOfLargeFilesAsksForAScan() {
        compare(test.item("resultsAge").text, test.said("Scanned just now"));
        verify(!test.isShown("resultsOutdated"));
        verify(!test.item("scanAgain").primary);
        test.item("largeThreshold").forceActiveFocus();
        keyClick(Qt.Key_Up);
        compare(test.item("resultsOutdated").text, test.said("Scan again to find large files of the new size."));
        verify(test.item("scanAgain").primary);
        test.clickOn("scanAgain");
        tryVerify(() => !test.isShown("resultsOutdated"));
        test.item("heroSentence");
    }

    function test_3_backToTheStartAndToTheResults() {
        test.clickOn("backToStart");
        test.item("startScan");
        tryVerify(() => !test.isShown("heroSentence"));
        test.clickOn("showResults");
        test.item("heroSentence");
    }
}
