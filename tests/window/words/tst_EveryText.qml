import QtQuick
import QtTest
import Orlen.App
import "../journeys"

/// In a language with long words: every text is looked up, and there is room for it in the smallest window.
Journey {
    id: test

    name: "EveryText"

    function check(where: string) {
        waitForRendering(test.window.contentItem, 500);
        compare(stage.notLookedUp(test.window).join("\n"), "", where);
        compare(stage.cut(test.window).join("\n"), "", where);
    }

    function everyScreen(when: string) {
        for (let screen = Screens.Home; screen <= Screens.Safety; ++screen) {
            test.window.navigation.screen = screen;
            wait(100);
            test.check(Screens.title(screen) + " " + when);
        }
    }

    function initTestCase() {
        test.open();
        test.window.width = test.window.minimumWidth;
        test.window.height = test.window.minimumHeight;
    }

    function test_01_onboarding() {
        test.item("continue");
        test.check("onboarding");
        test.window.navigation.finishOnboarding();
    }

    function test_02_beforeAScan() {
        test.everyScreen("before a scan");
    }

    function test_03_afterAScan() {
        test.window.navigation.screen = Screens.Home;
        AppModel.results.startScan();
        test.item("heroSentence");
        test.everyScreen("after a scan");
    }

    function test_04_answers() {
        test.window.navigation.screen = Screens.Ask;
        for (let number = 0; number < 5; ++number) {
            test.clickOn("suggestion-" + number);
            test.item("copyAnswer");
            test.check("answer " + number);
            test.window.navigation.screen = Screens.Home;
            test.window.navigation.screen = Screens.Ask;
            break;
        }
    }

    function test_05_diskMapAsAList() {
        test.window.navigation.screen = Screens.DiskMap;
        test.tabTo("diskMapForm");
        keyClick(Qt.Key_Right);
        test.row("diskMapList", 0);
        test.check("the disk map as a list");
    }

    function test_06_categories() {
        test.window.navigation.screen = Screens.Home;
        for (const category of [2, 5]) {
            // In large text the legend lies lower than the window is high.
            const page = test.item("resultsPage");
            page.contentY = Math.min(200, page.contentHeight - page.height);
            test.clickOn("legend-" + category);
            test.item("categoryFolder-0");
            test.check("category " + category);
            test.clickOn("closeSheet");
            tryVerify(() => !test.isShown("categoryContent"));
        }
    }

    function test_07_photos() {
        test.window.navigation.screen = Screens.Photos;
        test.clickOn("showAll");
        test.item("photoSet");
        test.check("a group of photos");
        test.clickOn("compareSet");
        tryVerify(() => test.item("comparePhoto2").facts.length === 6);
        test.check("a set of photos side by side");
        keyClick(Qt.Key_Space);
        test.check("two photos in one place");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("comparePhoto2"));
    }

    function test_08_findings() {
        test.window.navigation.screen = Screens.Home;
        for (const kind of ["caches", "duplicates", "developer"]) {
            if (!test.isShown("finding-" + kind))
                continue;
            test.window.navigation.showFinding(kind);
            test.row("findingEntries", 0);
            test.check("finding " + kind);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Space);
            test.item("previewArea");
            test.check("a preview of " + kind);
            keyClick(Qt.Key_Escape);
            tryVerify(() => !test.isShown("previewArea"));
            test.clickOn("closeSheet");
            tryVerify(() => !test.isShown("findingEntries"));
        }
    }

    function test_09_filterThatFindsNothing() {
        test.window.navigation.showFinding("caches");
        test.clickOn("entryFilter");
        test.type("zzzz");
        test.hasRows("findingEntries", 0);
        test.check("nothing matches");
        test.clickOn("closeSheet");
        tryVerify(() => !test.isShown("findingEntries"));
    }

    function test_10_cleanUp() {
        test.clickOn("reviewAndClean");
        test.row("planEntries", 0);
        test.check("the review");
        test.clickOn("primaryAction");
        test.item("cleaningDone");
        test.check("the end of a clean-up");
        test.clickOn("cleaningDone");
        tryVerify(() => !test.isShown("cleaningTitle"));
    }

    function test_11_history() {
        test.window.navigation.screen = Screens.History;
        test.clickOn("unfoldButton");
        test.row("recordItems", 0);
        wait(100);
        test.check("a past clean-up");
        test.clickOn("restoreButton");
        test.item("notice");
        test.check("a restored clean-up");
        test.clickOn("closeNotice");
    }

    function test_12_applications() {
        test.window.navigation.screen = Screens.Apps;
        test.tabTo("appList");
        keyClick(Qt.Key_Space);
        test.item("reviewTicked");
        test.check("an application is ticked");
        keyClick(Qt.Key_Space);
        tryVerify(() => !test.isShown("reviewTicked"));
        test.clickOn("appSearch");
        test.type("zzzz");
        test.hasRows("appList", 0);
        test.check("no application matches");
        keyClick(Qt.Key_Escape);
        test.clickOn("leftBehind");
        test.row("leftoverList", 0);
        test.check("what is left behind");
        test.clickOn("closeSheet");
        tryVerify(() => !test.isShown("leftoverList"));
        test.clickOn("appSearch");
        test.type("sketch");
        test.hasRows("appList", 1);
        tryVerify(() => test.row("appList", 0).name === "Sketcher");
        test.click(test.row("appList", 0));
        test.row("leftoverList", 2);
        test.check("an application");
        test.clickOn("closeSheet");
        tryVerify(() => !test.isShown("leftoverList"));
    }

    function test_13_shortcuts() {
        keyClick(Qt.Key_F1);
        test.item("shortcutKeys");
        test.check("the shortcuts");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("shortcutKeys"));
    }

    function test_14_trayPanel() {
        const panel = tray.createObject(null, { visible: true });
        verify(waitForRendering(panel.contentItem));
        compare(stage.notLookedUp(panel).join("\n"), "");
        compare(stage.cut(panel).join("\n"), "");
        panel.destroy();
    }

    Component {
        id: tray

        TrayPanel {}
    }
}
