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
        tryVerify(() => wanted.menu.opened);
        // The pointer that rests on an action would choose it instead.
        mouseMove(test.window.contentItem, 1, 1);
        for (const key of [Qt.Key_Down, Qt.Key_Up]) {
            for (let presses = 0; presses < 10 && !wanted.highlighted; ++presses)
                keyClick(key);
        }
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
        verify(test.item("selectedText").text.startsWith(test.selectedOf(0, 1)), test.item("selectedText").text);
        verify(test.item("notice").text.includes("~/.cache/mesa_shader_cache"), test.item("notice").text);
        verify(test.isFocused("findingEntries"), "the keyboard is in the list again");
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        test.hasRows("findingEntries", 2);
        compare(test.names("findingEntries"), "spotify mesa_shader_cache");
        verify(test.item("selectedText").text.startsWith(test.selectedOf(1, 2)), "as selected as it was");
        tryCompare(test.item("notice"), "text", test.said("{what} is no longer excluded.", { what: "~/.cache/mesa_shader_cache" }));
    }

    function test_2_theOtherActions() {
        const row = test.row("findingEntries", 1);
        mouseClick(row, 60, row.height / 2, Qt.RightButton);
        test.choose(RowMenuModel.TickFolder);
        verify(test.item("selectedText").text.startsWith(test.selectedOf(2, 2)), test.item("selectedText").text);
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
        compare(test.names("planEntries"), [test.said("App caches"), "spotify mesa_shader_cache", test.said("pip cache"), "pip"].join(" "));
        const lead = test.item("reviewLead").text;
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        test.tabTo("planEntries");
        keyClick(Qt.Key_Home);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Menu);
        test.choose(RowMenuModel.ExcludeName);
        tryCompare(plan, "count", 4);
        verify(test.item("reviewLead").text !== lead);
        tryVerify(() => test.item("notice").text.includes("spotify"), 5000, test.item("notice").text);
        test.clickOn("undoNotice");
        tryCompare(plan, "count", 5);
        compare(test.item("reviewLead").text, lead);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("planEntries"));
    }

    function test_4_whatIsExcludedIsListedAndRemoved() {
        test.clickOn("finding-caches");
        tryVerify(() => test.isFocused("findingEntries"));
        keyClick(Qt.Key_Home);
        keyClick(Qt.Key_Menu);
        test.choose(RowMenuModel.ExcludeName);
        tryVerify(() => test.names("findingEntries") === "mesa_shader_cache");
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
        test.hasRows("findingEntries", 2);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("findingEntries"));
    }

    function test_5_aPathIsTested() {
        keyClick(Qt.Key_9, Qt.ControlModifier);
        test.tabTo("testedPath");
        test.type("~/.cache/pip");
        tryVerify(() => test.item("testAnswer").text.includes(test.said("pip cache")), 5000, test.item("testAnswer").text);
        if (test.isShown("undoNotice"))
            keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("undoNotice"));
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("testAnswer"));
    }

    /// Opens the menu of the current row of a list, or of its first, by both keys and by a right click.
    function menuOf(list: string) {
        const shown = test.item(list);
        tryVerify(() => shown.count > 0, 5000, list + " has rows");
        shown.forceActiveFocus(Qt.TabFocusReason);
        const row = test.row(list, 0);
        const copy = "menu-" + RowMenuModel.CopyPath;
        const ways = [() => keyClick(Qt.Key_Menu), () => keyClick(Qt.Key_F10, Qt.ShiftModifier),
                      () => mouseClick(row, row.width / 2, row.height / 2, Qt.RightButton)];
        for (const open of ways) {
            keyClick(Qt.Key_Home);
            tryVerify(() => shown.currentIndex === 0);
            open();
            test.item(copy);
            tryVerify(() => test.item(copy).menu.opened);
            keyClick(Qt.Key_Escape);
            tryVerify(() => !test.isShown(copy));
        }
    }

    function test_6_everyListHasIt() {
        keyClick(Qt.Key_6, Qt.ControlModifier);
        test.menuOf("appList");
        keyClick(Qt.Key_7, Qt.ControlModifier);
        test.menuOf("startupList");
    }
}
