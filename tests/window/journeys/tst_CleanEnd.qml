import QtQuick
import QtTest
import Orlen.App

/// The end of a clean-up: what can be undone, for how long, and what is said of what could not move.
Journey {
    id: test

    name: "CleanEnd"

    property string hero: ""

    function initTestCase() {
        test.openScanned();
        test.hero = test.item("heroSentence").text;
    }

    /// Cleans up what the scan has selected, as far as the end.
    function clean() {
        test.clickOn("reviewAndClean");
        test.clickOn("primaryAction");
        test.item("cleaningDone");
    }

    function restoredCount(count: int): string {
        return test.saidOf(count, "{count} restored", "{count} restored");
    }

    function close() {
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("cleaningTitle"));
    }

    function closeNotice() {
        test.clickOn("closeNotice");
        tryVerify(() => !test.isShown("notice"));
    }

    /// Everything is back, on the disk and on the screen.
    function checkBack() {
        verify(stage.exists(".cache/pip/http/three"));
        verify(stage.exists(".cache/mesa_shader_cache/two"));
        tryVerify(() => test.item("heroSentence").text === test.hero, 5000, test.item("heroSentence").text);
        tryVerify(() => !test.isShown("finding-trash"));
    }

    function test_1_undoneAtOnce() {
        test.clean();
        compare(test.item("cleaningTitle").text, test.moved(2));
        verify(stage.isInTrash("pip"));
        test.tabTo("cleaningUndo");
        keyClick(Qt.Key_Return);
        tryCompare(test.item("cleaningTitle"), "text", test.restoredCount(2));
        verify(!test.isShown("cleaningUndo"));
        verify(!test.isShown("openTrash"));
        test.close();
        test.checkBack();
        verify(test.isFocused("reviewAndClean"), "the focus is where it was");
        verify(!test.isShown("undoNotice"));
    }

    function test_2_undoneInTheBarByKeyboard() {
        test.clean();
        test.close();
        tryCompare(test.item("notice"), "text", test.moved(2));
        test.item("finding-trash");
        test.tabTo("findings");
        keyClick(Qt.Key_F6);
        verify(test.isFocused("undoNotice"));
        keyClick(Qt.Key_F6);
        verify(test.isFocused("findings"), "there and back");
        keyClick(Qt.Key_F6);
        keyClick(Qt.Key_Space);
        tryCompare(test.item("notice"), "text", test.restored(2));
        test.checkBack();
        test.closeNotice();
    }

    function test_3_theBarLeavesKeysToOthers() {
        test.clean();
        test.close();
        test.item("undoNotice");
        keyClick(Qt.Key_6, Qt.ControlModifier);
        keyClick(Qt.Key_F, Qt.ControlModifier);
        test.type("ab");
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        verify(test.item("appSearch").text !== "ab", "the field undoes its own");
        verify(stage.isInTrash("pip"));
        test.item("appSearch").text = "ab";
        keyClick(Qt.Key_Escape);
        compare(test.item("appSearch").text, "");
        verify(test.isShown("undoNotice"), "only the field takes the key");
        keyClick(Qt.Key_1, Qt.ControlModifier);
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        tryCompare(test.item("notice"), "text", test.restored(2));
        test.checkBack();
        test.closeNotice();
    }

    function test_4_theTrashIsOpened() {
        test.clean();
        test.clickOn("openTrash");
        tryVerify(() => test.item("notice").text.endsWith("/Trash/files"), 5000, "no program shows it here");
        test.closeNotice();
        test.clickOn("cleaningUndo");
        tryCompare(test.item("cleaningTitle"), "text", test.restoredCount(2));
        test.close();
        test.checkBack();
    }

    /// What the list says of its row with this name.
    function cause(name: string): string {
        const list = test.item("failureList");
        let reason = "";
        for (let number = 0; number < list.count; ++number) {
            list.positionViewAtIndex(number, ListView.Center);
            const row = test.row("failureList", number);
            if (row.startsReason)
                reason = [row.reason, row.remedy].join(". ");
            if (row.name === name)
                return reason;
        }
        return "";
    }

    function test_5_whatCouldNotBePutBack() {
        test.clean();
        stage.write(".cache/pip", "taken");
        test.clickOn("cleaningUndo");
        tryCompare(test.item("cleaningTitle"), "text", test.restoredCount(1));
        compare(test.item("cleaningFailed").text, test.saidOf(1, "{count} couldn't be restored", "{count} couldn't be restored"));
        compare(test.cause("pip"), [test.said("something is at the original place"),
                                    test.said("Move or rename what is there, then try again.")].join(". "));
        compare(stage.nameless(test.window).join("\n"), "");
        stage.remove(".cache/pip");
        test.clickOn("cleaningUndo");
        tryCompare(test.item("cleaningTitle"), "text", test.restoredCount(1));
        verify(!test.isShown("failureList"));
        test.close();
        test.checkBack();
    }

    function test_6_anUndoingThatFailsComesBack() {
        test.clean();
        test.close();
        stage.write(".cache/pip", "taken");
        test.clickOn("undoNotice");
        tryCompare(test.item("cleaningTitle"), "text", test.restoredCount(1));
        compare(test.item("failureList").count, 1);
        stage.remove(".cache/pip");
        test.clickOn("cleaningUndo");
        tryVerify(() => !test.isShown("failureList") && test.isShown("cleaningDone"));
        test.close();
        test.checkBack();
    }

    function test_7_whatCouldNotBeMoved() {
        stage.makeOldDownloads();
        keyClick(Qt.Key_R, Qt.ControlModifier);
        test.clickOn("finding-oldDownloads");
        test.row("findingEntries", 1);
        test.clickOn("selectAll");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("findingEntries"));
        stage.move(".cache/pip", "elsewhere");
        stage.move(".cache/mesa_shader_cache", "shaders");
        stage.write(".cache/mesa_shader_cache/two", "another");
        stage.writeTo("Downloads/old.txt");
        test.clean();
        compare(test.item("cleaningTitle").text, test.moved(1));
        compare(test.item("failureList").count, 3);
        compare(test.cause("pip"), [test.said("no longer there"), ""].join(". "));
        compare(test.cause("mesa_shader_cache"), [test.said("changed since the scan"),
                                        test.said("Scan again to see what is there now.")].join(". "));
        compare(test.cause("old.txt"), [test.said("in use"),
                                        test.said("Quit the program that uses it, then try again.")].join(". "));
        stage.writeTo("");
        test.close();
    }
}
