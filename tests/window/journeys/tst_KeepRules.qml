import QtQuick
import QtTest
import Orlen.App

/// Which of the copies is kept: by a rule, or those of a folder.
Journey {
    id: test

    name: "KeepRules"

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

    /// Opens the drop-down field by the keyboard and takes the choice so many below the present one, or above it if
    /// negative.
    function chooseRule(below: int) {
        test.item("keepRule").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        tryVerify(() => test.item("keepRule").popup.opened);
        for (let presses = 0; presses < below; ++presses)
            keyClick(Qt.Key_Down);
        for (let presses = 0; presses < -below; ++presses)
            keyClick(Qt.Key_Up);
        keyClick(Qt.Key_Return);
        tryVerify(() => !test.item("keepRule").popup.visible);
    }

    function test_1_theOldestIsKept() {
        test.openDuplicates();
        verify(!test.names().includes("report.txt"), "outside Downloads");
        compare(test.item("keepRule").displayText, test.said("Keep as proposed"));
        test.chooseRule(2);
        compare(test.item("keepRule").displayText, test.said("Keep the oldest"));
        tryVerify(() => test.names().includes("report.txt") && !test.names().includes("old.txt"));
        verify(stage.exists("Downloads/old.txt"));
    }

    function test_2_theCopiesInAFolderAreKept() {
        const row = test.row("findingEntries", test.names().indexOf("paper.txt"));
        mouseClick(row, 60, row.height / 2, Qt.RightButton);
        test.clickOn("menu-" + RowMenuModel.KeepFolder + "-papers");
        tryVerify(() => !test.isShown("menu-" + RowMenuModel.CopyPath));
        tryVerify(() => !test.names().includes("paper.txt") && test.names().includes("old.txt"));
        compare(test.item("keepRule").displayText, test.said("Keep those in {folder}", { folder: "papers" }));
    }

    function test_3_whatLiesInAChosenFolderIsNotOffered() {
        tryVerify(() => test.names().includes("old.txt"));
        test.clickOn("foldersThatStay");
        test.clickOn("stays-~/Downloads");
        tryVerify(() => !test.names().includes("old.txt"));
        tryCompare(test.item("foldersThatStay"), "text", test.said("{count} folder stays", { count: 1 }));
        test.clickOn("foldersThatStay");
        tryVerify(() => test.item("stays-~/Downloads").Accessible.checked);
        test.clickOn("stays-~/Downloads");
        tryVerify(() => test.names().includes("old.txt"));
        compare(test.item("foldersThatStay").text, test.said("Folders that stay"));
        test.chooseRule(-4);
        compare(test.item("keepRule").displayText, test.said("Keep as proposed"));
    }
}
