import QtQuick
import QtTest
import Orlen.App

/// Past clean-ups: found again, put back item by item, stopped, and those that have left the Trash.
Journey {
    id: test

    name: "History"

    function initTestCase() {
        test.openScanned();
        test.clean();
    }

    /// Cleans up what the scan has selected, and goes to the history.
    function clean() {
        test.clickOn("reviewAndClean");
        test.clickOn("primaryAction");
        test.item("cleaningDone");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("cleaningTitle"));
        keyClick(Qt.Key_8, Qt.ControlModifier);
        test.item("restoreButton");
    }

    function test_1_theTotalTellsWhatIsInTheTrash() {
        tryVerify(() => test.isShown("historyTotal"));
        const parts = test.said("{size} freed in all. {trash} more once you empty the Trash.", { size: "…", trash: "…" }).split("…");
        verify(test.item("historyTotal").text.endsWith(parts[2]), test.item("historyTotal").text);
    }

    function test_2_searchedByKeyboard() {
        keyClick(Qt.Key_F, Qt.ControlModifier);
        verify(test.isFocused("historySearch"));
        test.type("nowhere");
        tryVerify(() => !test.isShown("restoreButton"));
        keyClick(Qt.Key_Escape);
        test.item("restoreButton");
        test.type("cache pip");
        tryCompare(test.item("historySearch"), "text", "cache pip");
        test.hasRows("recordItems", 1);
        compare(test.row("recordItems", 0).name, "pip");
        compare(stage.nameless(test.window).join("\n"), "");
    }

    function test_3_oneItemIsPutBack() {
        test.tabTo("recordItems");
        tryVerify(() => test.row("recordItems", 0).restorable);
        keyClick(Qt.Key_Return);
        tryCompare(test.item("notice"), "text", test.restored(1));
        verify(stage.exists(".cache/pip/http/three"));
        verify(!stage.exists(".cache/mesa_shader_cache"));
        tryCompare(test.row("recordItems", 0), "isRestored", true);
        test.clickOn("closeNotice");
        tryVerify(() => !test.isShown("notice"));
        keyClick(Qt.Key_F, Qt.ControlModifier);
        keyClick(Qt.Key_Escape);
        test.hasRows("recordItems", 2);
        verify(test.item("restoreButton").enabled, "the rest can follow");
        tryVerify(() => test.row("recordItems", 0).restorable);
        test.click(stage.find(test.row("recordItems", 0), "itemAction"));
        tryVerify(() => stage.exists(".cache/mesa_shader_cache/two"));
        tryCompare(test.item("restoreButton"), "enabled", false);
        compare(test.item("restoreButton").text, Strings.restored);
    }

    function test_4_whatHasLeftTheTrashOffersNothing() {
        keyClick(Qt.Key_1, Qt.ControlModifier);
        tryVerify(() => test.item("reviewAndClean").enabled);
        test.clean();
        test.hasRows("historyList", 2);
        stage.remove(".local/share/Trash/files");
        keyClick(Qt.Key_1, Qt.ControlModifier);
        keyClick(Qt.Key_8, Qt.ControlModifier);
        tryVerify(() => test.row("historyList", 0).status === HistoryModel.Gone);
        compare(stage.find(test.row("historyList", 0), "restoreButton"), null);
        const parts = test.said("{size} freed in all.", { size: "…" }).split("…");
        tryVerify(() => test.item("historyTotal").text.endsWith(parts[1]), 5000, test.item("historyTotal").text);
    }

    function test_5_aRestoreIsStopped() {
        for (let number = 0; number < 400; ++number)
            stage.write("Downloads/many/" + number, "x");
        stage.cleanUp("Downloads/many");
        test.item("cleaningDone");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("cleaningTitle"));
        test.hasRows("historyList", 3);
        tryVerify(() => test.row("historyList", 0).status === HistoryModel.Restorable);
        test.clickOn("restoreButton", test.row("historyList", 0));
        tryVerify(() => test.row("historyList", 0).progressText !== "");
        compare(test.item("restoreButton", test.row("historyList", 0)).text, Strings.stop);
        test.item("restoreButton", test.row("historyList", 0)).clicked();
        tryCompare(test.row("historyList", 0), "status", HistoryModel.Restorable);
        verify(stage.exists("Downloads/many/0"));
        verify(!stage.exists("Downloads/many/99"));
    }
}
