import QtQuick
import QtTest
import Orlen.App

/// Whatever is shown has a name for a screen reader, and nothing is written while it is drawn.
Journey {
    id: test

    name: "EveryScreen"

    function checkNames(where: string) {
        waitForRendering(test.window.contentItem, 500);
        compare(stage.nameless(test.window).join("\n"), "", where);
    }

    function test_1_beforeAScan() {
        test.item("continue");
        test.checkNames("onboarding");
        test.window.navigation.finishOnboarding();
        test.everyScreen();
    }

    function test_2_afterAScan() {
        test.window.navigation.screen = Screens.Home;
        AppModel.results.startScan();
        test.item("heroSentence");
        test.window.width = test.window.minimumWidth;
        test.window.height = test.window.minimumHeight;
        test.everyScreen();
    }

    function everyScreen() {
        for (let screen = Screens.Home; screen <= Screens.Safety; ++screen) {
            test.window.navigation.screen = screen;
            test.checkNames(Screens.title(screen));
        }
    }

    function test_3_whatUnfolds() {
        test.window.navigation.screen = Screens.Ask;
        test.clickOn("suggestion-0");
        test.item("copyAnswer");
        test.checkNames("an answer");
        test.window.navigation.screen = Screens.DiskMap;
        test.tabTo("diskMapForm");
        keyClick(Qt.Key_Right);
        test.row("diskMapList", 0);
        test.checkNames("the disk map as a list");
    }

    function test_4_sheets() {
        test.window.navigation.screen = Screens.Home;
        test.clickOn("finding-caches");
        test.row("findingEntries", 1);
        test.checkNames("a finding");
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Space);
        test.item("previewArea");
        test.checkNames("a preview");
        keyClick(Qt.Key_Escape);
        test.clickOn("primaryAction");
        test.row("planEntries", 2);
        test.checkNames("the review");
        test.clickOn("primaryAction");
        test.item("cleaningDone");
        test.checkNames("the end of a clean-up");
        keyClick(Qt.Key_Escape);
        keyClick(Qt.Key_F1);
        test.item("shortcutKeys");
        test.checkNames("the shortcuts");
        keyClick(Qt.Key_Escape);
    }

    function test_5_sheetsOfOtherScreens() {
        test.window.navigation.screen = Screens.History;
        test.clickOn("unfoldButton");
        test.row("recordItems", 0);
        test.checkNames("a past clean-up");
        test.window.navigation.screen = Screens.Apps;
        test.clickOn("appSearch");
        test.type("sketch");
        test.hasRows("appList", 1);
        tryVerify(() => test.row("appList", 0).name === "Sketcher");
        test.click(test.row("appList", 0));
        test.row("leftoverList", 2);
        test.checkNames("an application");
        keyClick(Qt.Key_Escape);
    }

    function test_6_trayPanel() {
        const panel = tray.createObject(null, { visible: true });
        verify(waitForRendering(panel.contentItem));
        verify(stage.find(panel, "trayOpen") !== null);
        compare(stage.nameless(panel).join("\n"), "");
        panel.destroy();
    }

    Component {
        id: tray

        TrayPanel {}
    }
}
