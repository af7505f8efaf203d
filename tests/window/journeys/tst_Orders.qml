import QtQuick
import QtTest
import Orlen.App

/// The orders of lists, which are remembered.
Journey {
    id: test

    name: "Orders"

    function initTestCase() {
        test.open();
        stage.makeOldDownloads();
        test.window.navigation.finishOnboarding();
        test.clickOn("startScan");
        test.item("heroSentence");
    }

    function names(): list<string> {
        const shown = test.item("findingEntries");
        let names = [];
        for (let row = 0; row < shown.count; ++row)
            names.push(test.row("findingEntries", row).name);
        return names;
    }

    function openDuplicates() {
        test.clickOn("finding-duplicates");
        test.hasRows("findingEntries", 3);
        tryVerify(() => test.isFocused("findingEntries"));
    }

    function test_1_theOrderIsRemembered() {
        test.openDuplicates();
        test.clickOn("entryFilter-1");
        compare(test.names().join(), "old.txt,paper.txt,report (1).txt");
        test.clickOn("entryFilter-1");
        compare(test.names().join(), "report (1).txt,paper.txt,old.txt");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("findingEntries"));
        test.cleanupTestCase();
        test.open();
        test.openDuplicates();
        compare(test.names().join(), "report (1).txt,paper.txt,old.txt");
    }

    function test_2_photosAreSorted() {
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("findingEntries"));
        test.window.navigation.screen = Screens.Photos;
        test.clickOn("showAll");
        test.hasRows("photoSets", 1);
        test.clickOn("photoFilter-1");
        verify(test.item("photoFilter-1").active);
        test.clickOn("photoFilter");
        test.type("nothing like it");
        test.hasRows("photoSets", 0);
        test.window.navigation.screen = Screens.Home;
        test.cleanupTestCase();
        test.open();
        test.window.navigation.screen = Screens.Photos;
        test.clickOn("showAll");
        verify(test.item("photoFilter-1").active, "the order is remembered");
        test.hasRows("photoSets", 1);
    }
}
