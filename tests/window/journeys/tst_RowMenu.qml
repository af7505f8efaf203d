import QtQuick
import QtTest
import Orlen.App

/// From the menu of a row to the list of what is never offered, and back.
Journey {
    id: test

    name: "RowMenu"

    function initTestCase() {
        test.openScanned();
    }

    function names(list: string): string {
        const shown = test.item(list);
        let names = [];
        for (let row = 0; row < shown.count; ++row)
            names.push(test.row(list, row).name);
        return names.join(" ");
    }

    function action(action: int): Item {
        return test.item("menu-" + action);
    }

    /// Moves to an action of the open menu with the keyboard, and does it.
    function choose(action: int) {
        const wanted = test.action(action);
        for (let presses = 0; presses < 10 && !wanted.highlighted; ++presses)
            keyClick(Qt.Key_Down);
        verify(wanted.highlighted, "the action is reached");
        keyClick(Qt.Key_Return);
        tryVerify(() => !test.isShown("menu-" + action));
    }

    function test_1_excludeByMenuKeyAndUndo() {
        test.clickOn("finding-caches");
        compare(test.names("findingEntries"), "spotify mesa_shader_cache");
        tryVerify(() => test.isFocused("findingEntries"));
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Menu);
        verify(test.action(RowMenuModel.Preview).highlighted, "the keyboard begins at the top");
        compare(stage.nameless(test.window).join("\n"), "");
        test.choose(RowMenuModel.ExcludePath);
        compare(test.names("findingEntries"), "spotify");
        verify(test.item("selectedText").text.startsWith("0 of 1 selected"), test.item("selectedText").text);
        verify(test.item("notice").text.startsWith("~/.cache/mesa_shader_cache is excluded"), test.item("notice").text);
        verify(test.isFocused("findingEntries"), "the keyboard is in the list again");
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        tryCompare(test.item("findingEntries"), "count", 2);
        compare(test.names("findingEntries"), "spotify mesa_shader_cache");
        verify(test.item("selectedText").text.startsWith("1 of 2 selected"), "as selected as it was");
        tryVerify(() => test.item("notice").text.includes("no longer excluded"));
    }

    function test_2_theOtherActions() {
        const row = test.row("findingEntries", 1);
        mouseClick(row, 60, row.height / 2, Qt.RightButton);
        test.choose(RowMenuModel.TickFolder);
        verify(test.item("selectedText").text.startsWith("2 of 2 selected"), test.item("selectedText").text);
        keyClick(Qt.Key_F10, Qt.ShiftModifier);
        test.choose(RowMenuModel.Preview);
        compare(test.item("previewArea").preview.name, "mesa_shader_cache");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("previewArea"));
        keyClick(Qt.Key_Menu);
        test.action(RowMenuModel.CopyPath);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("menu-" + RowMenuModel.CopyPath));
        verify(test.isShown("findingEntries"), "only the menu closes");
    }

    function test_3_theReviewFollows() {
        test.clickOn("primaryAction");
        const plan = test.item("planEntries");
        compare(test.names("planEntries"), "App caches spotify mesa_shader_cache pip cache pip");
        const lead = test.item("reviewLead").text;
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        test.tabTo("planEntries");
        keyClick(Qt.Key_Home);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Menu);
        test.choose(RowMenuModel.ExcludeName);
        tryCompare(plan, "count", 4);
        verify(test.item("reviewLead").text !== lead);
        tryVerify(() => test.item("notice").text.startsWith('"spotify" is excluded'), 5000, test.item("notice").text);
        test.clickOn("undoNotice");
        tryCompare(plan, "count", 5);
        compare(test.item("reviewLead").text, lead);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("planEntries"));
    }

    function test_4_whatIsExcludedIsListedAndRemoved() {
        test.clickOn("finding-caches");
        tryVerify(() => test.isFocused("findingEntries"));
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Menu);
        test.choose(RowMenuModel.ExcludeName);
        compare(test.names("findingEntries"), "mesa_shader_cache");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("findingEntries"));
        tryVerify(() => test.isShown("undoNotice"));
        keyClick(Qt.Key_9, Qt.ControlModifier);
        test.tabTo("exclusions");
        const list = test.item("exclusions");
        compare(list.count, 1);
        compare(test.row("exclusions", 0).what, "spotify");
        compare(stage.nameless(test.window).join("\n"), "");
        keyClick(Qt.Key_Tab);
        verify(test.isFocused("removeExclusion"));
        keyClick(Qt.Key_Return);
        tryCompare(list, "count", 0);
        verify(test.isFocused("exclusions"));
        keyClick(Qt.Key_1, Qt.ControlModifier);
        test.clickOn("finding-caches");
        tryCompare(test.item("findingEntries"), "count", 2);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("findingEntries"));
    }

    function test_5_aPathIsTested() {
        keyClick(Qt.Key_9, Qt.ControlModifier);
        test.tabTo("testedPath");
        test.type("~/.cache/pip");
        tryVerify(() => test.item("testAnswer").text.includes("Safe: "), 5000, test.item("testAnswer").text);
        if (test.isShown("undoNotice"))
            keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("undoNotice"));
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("testAnswer"));
    }
}
