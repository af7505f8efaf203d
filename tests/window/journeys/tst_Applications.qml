import QtQuick
import QtTest
import Orlen.App

/// An application and what it left, out of the way.
Journey {
    id: test

    name: "Applications"

    function initTestCase() {
        test.openOnboarded();
        keyClick(Qt.Key_6, Qt.ControlModifier);
    }

    function test_0_ofOneSourceAlone() {
        tryVerify(() => test.item("appList").count > 1 && test.isShown("appSource"));
        const all = test.item("appList").count;
        test.tabTo("appSource");
        keyClick(Qt.Key_Down);
        tryVerify(() => test.item("appList").count < all);
        keyClick(Qt.Key_Up);
        test.hasRows("appList", all);
        test.clickOn("appOrder-2");
        tryVerify(() => test.row("appList", 0).usage.includes(test.said("Last use unknown")));
        test.clickOn("appOrder-0");
    }

    function test_0b_severalGoToOneReview() {
        test.tabTo("appList");
        keyClick(Qt.Key_Home);
        keyClick(Qt.Key_Space);
        tryVerify(() => test.row("appList", 0).checked);
        test.clickOn("check", test.row("appList", 1));
        tryVerify(() => test.row("appList", 1).checked);
        test.clickOn("reviewTicked");
        tryCompare(test.item("planTitle"), "text",
                   test.saidOf(2, "Uninstall {count} application", "Uninstall {count} applications"));
        compare(test.item("reviewLead").text, Strings.reviewLead(2));
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("planTitle"));
        verify(test.row("appList", 1).checked);
        test.clickOn("check", test.row("appList", 1));
        test.clickOn("clearTicks");
        tryVerify(() => !test.isShown("reviewTicked"));
        verify(!test.row("appList", 0).checked);
    }

    function test_1_theSearchFindsIt() {
        test.clickOn("appSearch");
        test.type("sketch");
        test.hasRows("appList", 1);
        tryVerify(() => test.row("appList", 0).name === "Sketcher");
    }

    function test_2_itsLeftoversAreListed() {
        test.click(test.row("appList", 0));
        test.hasRows("leftoverList", 3);
        const total = test.item("uninstallTotal").text;
        test.click(test.row("leftoverList", 2));
        compare(test.row("leftoverList", 2).checked, false);
        verify(test.item("uninstallTotal").text !== total);
        test.clickOn("leftoversAll");
        compare(test.row("leftoverList", 2).checked, true);
        test.clickOn("check", test.row("leftoverList", 2));
        compare(test.row("leftoverList", 2).checked, false);
    }

    function test_3_theReviewListsAllOfIt() {
        test.clickOn("reviewUninstall");
        compare(test.item("planTitle").text, test.said("Uninstall {name}", { name: "Sketcher" }));
        compare(test.item("reviewLead").text, Strings.reviewLead(3));
        verify(stage.exists("Applications/Sketcher-2.1-x86_64.AppImage"));
    }

    function test_4_theCleanUpMovesItToTheTrash() {
        test.clickOn("primaryAction");
        test.item("cleaningDone");
        compare(test.item("cleaningTitle").text, test.moved(3));
        verify(!stage.exists("Applications/Sketcher-2.1-x86_64.AppImage"));
        verify(stage.isInTrash("Sketcher-2.1-x86_64.AppImage"));
        test.clickOn("cleaningDone");
        // It lies over the end of the screen.
        test.clickOn("closeNotice");
        tryVerify(() => !test.isShown("closeNotice"));
        test.hasRows("appList", 0);
    }

    function test_5_whatAppsThatAreGoneLeftIsListedUnchecked() {
        test.clickOn("appSearch");
        keyClick(Qt.Key_A, Qt.ControlModifier);
        keyClick(Qt.Key_Delete);
        test.tabTo("leftBehind");
        keyClick(Qt.Key_Return);
        test.hasRows("leftoverList", 2);
        compare(test.item("leftoversAll").checkState, Qt.Unchecked);
        verify(!test.item("reviewLeftBehind").enabled);
        verify(test.row("leftoverList", 0).explanation.includes("Barquux"));
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("leftoverList"));
        verify(test.isFocused("leftBehind"));
    }

    function test_6_andGoesToTheTrashByWayOfTheReview() {
        test.clickOn("leftBehind");
        test.click(test.row("leftoverList", 1));
        wait(50);
        verify(!test.isShown("reviewUninstall"));
        test.clickOn("reviewLeftBehind");
        compare(test.item("reviewLead").text, Strings.reviewLead(1));
        test.clickOn("primaryAction");
        test.clickOn("cleaningDone");
        verify(!stage.exists(".local/share/Barquux"));
        verify(stage.exists(".config/Barquux"));
        tryCompare(test.item("leftBehind").leftovers, "count", 1);
    }
}
