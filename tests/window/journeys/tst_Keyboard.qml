import QtQuick
import QtTest
import Orlen.App

/// The same way as a new user's, with no pointer at all.
Journey {
    id: test

    name: "Keyboard"

    function test_1_onboarding() {
        test.tabTo("continue");
        keyClick(Qt.Key_Return);
        test.item("startScan");
        test.tabTo("startScan");
    }

    function test_2_everyScreenHasItsKey() {
        for (let screen = Screens.Safety; screen >= Screens.Home; --screen) {
            keyClick(Qt.Key_1 + screen, Qt.ControlModifier);
            compare(test.window.navigation.screen, screen);
        }
    }

    function test_3_theShortcutsAreShown() {
        keyClick(Qt.Key_Question, Qt.ControlModifier);
        const keys = test.item("shortcutKeys");
        tryVerify(() => test.isFocused("shortcutKeys"));
        const atEnd = () => keys.contentY > keys.contentHeight - keys.height - 1;
        for (let presses = 0; presses < 60 && !atEnd(); ++presses)
            keyClick(Qt.Key_Down);
        verify(atEnd(), "scrolled to the end");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("shortcutKeys"));
    }

    /// Moves among the findings as far as this one and opens it.
    function openFinding(id: string) {
        test.tabTo("findings");
        keyClick(Qt.Key_Home);
        for (let steps = 0; steps < 10 && !test.isFocused("finding-" + id); ++steps)
            keyClick(Qt.Key_Right);
        verify(test.isFocused("finding-" + id));
        keyClick(Qt.Key_Return);
        test.row("findingEntries", 0);
        tryVerify(() => test.isFocused("findingEntries"));
        keyClick(Qt.Key_Down);
        compare(test.item("findingEntries").currentIndex, 0);
    }

    function test_4_aPreviewScrolls() {
        keyClick(Qt.Key_F5);
        test.item("heroSentence");
        test.openFinding("duplicates");
        keyClick(Qt.Key_Space);
        const text = test.item("previewText");
        tryVerify(() => text.contentHeight > 3 * text.height);
        keyClick(Qt.Key_PageDown);
        verify(text.contentY > text.height / 2 && text.contentY < text.height);
        keyClick(Qt.Key_PageUp);
        verify(text.contentY < text.height / 4);
        keyClick(Qt.Key_Space);
        tryVerify(() => !test.isShown("previewText"));
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("findingEntries"));
    }

    function test_5_lookAndChoose() {
        test.openFinding("caches");
        keyClick(Qt.Key_Space);
        compare(test.item("previewArea").preview.name, "spotify");
        keyClick(Qt.Key_Down);
        compare(test.item("previewArea").preview.name, "mesa_shader_cache");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("previewArea"));
        verify(test.item("selectedText").text.startsWith(test.selectedOf(1, 2)));
        keyClick(Qt.Key_Return);
        verify(test.item("selectedText").text.startsWith(test.selectedOf(0, 2)));
        keyClick(Qt.Key_A, Qt.ControlModifier);
        verify(test.item("selectedText").text.startsWith(test.selectedOf(2, 2)));
    }

    function test_6_filter() {
        keyClick(Qt.Key_F, Qt.ControlModifier);
        verify(test.isFocused("entryFilter"));
        test.type("mesa");
        test.hasRows("findingEntries", 1);
        keyClick(Qt.Key_Escape);
        test.hasRows("findingEntries", 2);
    }

    function test_7_reviewAndClean() {
        test.tabTo("primaryAction");
        keyClick(Qt.Key_Space);
        test.row("planEntries", 4);
        test.tabTo("planEntries");
        keyClick(Qt.Key_End);
        keyClick(Qt.Key_Return);
        compare(test.item("reviewLead").text, Strings.reviewLead(2));
        keyClick(Qt.Key_Left);
        test.hasRows("planEntries", 4);
        test.tabTo("primaryAction");
        keyClick(Qt.Key_Return);
        test.item("cleaningDone");
        verify(stage.isInTrash("mesa_shader_cache"));
        verify(stage.exists(".cache/pip/http/three"));
        keyClick(Qt.Key_Return);
        tryVerify(() => !test.isShown("cleaningTitle"));
    }

    function test_8_restore() {
        keyClick(Qt.Key_8, Qt.ControlModifier);
        test.item("restoreButton");
        test.tabTo("historyList");
        keyClick(Qt.Key_Return);
        test.hasRows("recordItems", 2);
        test.tabTo("restoreButton");
        keyClick(Qt.Key_Space);
        tryCompare(test.item("notice"), "text", test.restored(2));
        verify(stage.exists(".cache/spotify/Data/one"));
        verify(stage.exists(".cache/mesa_shader_cache/two"));
    }
}
