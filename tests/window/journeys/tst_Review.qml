import QtQuick
import QtTest
import Orlen.App

/// What is unticked stays, however often the review lists it and whatever would take it along.
Journey {
    id: test

    name: "Review"

    function initTestCase() {
        test.open();
        stage.makeOldDownloads();
        test.window.navigation.finishOnboarding();
        test.clickOn("startScan");
        test.item("heroSentence");
    }

    /// The rows of the plan with this name, in sight.
    function planRow(name: string, time: int): Item {
        const list = test.item("planEntries");
        list.forceLayout();
        for (let number = 0, found = 0; number < list.count; ++number) {
            list.positionViewAtIndex(number, ListView.Center);
            if (test.row("planEntries", number).name === name && ++found === time)
                return test.row("planEntries", number);
        }
        fail("the plan lists " + name + " " + time + " times");
        return null;
    }

    function mark(name: string, time: int): int {
        return test.planRow(name, time).mark;
    }

    function checkLead(count: int) {
        compare(test.item("reviewLead").text, Strings.reviewLead(count));
    }

    function test_1_oneTickForAllFindings() {
        test.clickOn("finding-oldDownloads");
        test.row("findingEntries", 1);
        test.clickOn("selectAll");
        verify(test.item("selectedText").text.startsWith(test.selectedOf(2, 2)));
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("findingEntries"));
        test.clickOn("finding-duplicates");
        test.hasRows("findingEntries", 3);
        verify(test.item("selectedText").text.startsWith(test.selectedOf(2, 3)), "what lies in the folder goes along");
    }

    function test_2_untickedInOneRowUntickedInAll() {
        test.clickOn("primaryAction");
        test.row("planEntries", 1);
        const all = test.item("planEntries").count;
        test.clickOn("planFilter");
        test.type("papers");
        tryVerify(() => test.item("planEntries").count < all);
        keyClick(Qt.Key_A, Qt.ControlModifier);
        keyClick(Qt.Key_Delete);
        test.hasRows("planEntries", all);
        test.checkLead(4);
        test.clickOn("check", test.planRow("old.txt", 2));
        compare(test.mark("old.txt", 1), Qt.Unchecked);
        test.checkLead(3);
        test.clickOn("check", test.planRow("paper.txt", 1));
        compare(test.mark("papers", 1), Qt.Unchecked);
        test.checkLead(2);
    }

    function test_3_onlyWhatIsTickedMoves() {
        stage.move(".cache/pip", "elsewhere");
        test.clickOn("primaryAction");
        test.item("cleaningDone");
        compare(test.item("cleaningTitle").text, test.moved(1));
        compare(test.item("cleaningFailed").text, test.saidOf(1, "{count} couldn't be moved", "{count} couldn't be moved"));
        verify(stage.exists("Downloads/old.txt"));
        verify(stage.exists("Downloads/papers/paper.txt"));
    }

    function test_4_whatCouldNotMoveIsListed() {
        test.window.width = test.window.minimumWidth;
        test.window.height = test.window.minimumHeight;
        stage.fill(findChild(test.window, "failureList").failures);
        const list = test.item("failureList");
        tryVerify(() => list.itemAtIndex(2) !== null);
        compare(list.itemAtIndex(0).name, "gone");
        compare(stage.find(list.itemAtIndex(0), "failureReason").text.toLowerCase(), test.said("no longer there").toLowerCase());
        compare(stage.find(list.itemAtIndex(0), "failureRemedy"), null);
        compare(stage.find(list.itemAtIndex(1), "failureRemedy").text, test.said("Quit the program that uses it, then try again."));
        compare(stage.find(list.itemAtIndex(2), "failureRemedy"), null, "once for each reason");
        compare(stage.nameless(test.window).join("\n"), "");
        test.tabTo("failureList");
        keyClick(Qt.Key_End);
        tryVerify(() => list.atYEnd && list.contentY > 0, 5000, "the list scrolls");
        test.clickOn("cleaningDone");
        tryVerify(() => !test.isShown("cleaningTitle"));
    }
}
