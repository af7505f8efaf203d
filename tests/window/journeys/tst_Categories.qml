import QtQuick
import QtTest
import Orlen.App

/// From the storage ring to what fills a category, with the keyboard and with the pointer.
Journey {
    id: test

    name: "Categories"

    function initTestCase() {
        test.openOnboarded();
    }

    function test_1_theRingOpensACategory() {
        test.tabTo("storageRing");
        // Next to the disk of whoever runs this, nothing else in this home is large enough to be drawn.
        const system = 5;
        compare(test.item("storageRing").keyed, system);
        keyClick(Qt.Key_Right);
        compare(test.item("storageRing").keyed, system);
        keyClick(Qt.Key_Return);
        compare(test.item("categoryContent").title, "System");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("categoryContent"));
        tryVerify(() => test.isFocused("storageRing"));
    }

    function test_2_theLegendToo() {
        const media = "legend-2";
        test.item(media);
        for (let presses = 0; presses < 40 && !test.isFocused("storageLegend"); ++presses)
            keyClick(Qt.Key_Tab);
        for (let steps = 0; steps < 7 && !test.isFocused(media); ++steps)
            keyClick(Qt.Key_Right);
        verify(test.isFocused(media));
        keyClick(Qt.Key_Return);
        compare(test.item("categoryFolder-0").name, "Videos");
        verify(/^holidays\s4[.,]2\sMB$/.test(test.item("categoryFolder-0").items), test.item("categoryFolder-0").items);
        compare(stage.nameless(test.window), []);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("categoryContent"));
        tryVerify(() => test.isFocused(media));
    }

    function test_3_systemComesWithAdvice() {
        test.clickOn("legend-5");
        test.clickOn("copyCommand");
        compare(test.item("copyCommand").text, Strings.copied);
        compare(stage.nameless(test.window), []);
        test.clickOn("closeSheet");
        tryVerify(() => !test.isShown("categoryContent"));
    }

    function test_4_aFolderOpensInTheDiskMap() {
        test.clickOn("legend-2");
        test.clickOn("categoryFolder-0");
        tryVerify(() => !test.isShown("categoryContent"));
        compare(test.window.navigation.screen, Screens.DiskMap);
        tryVerify(() => test.isShown("tile-0") && stage.find(test.window, "tile-0").name === "holidays", 10000);
        keyClick(Qt.Key_1, Qt.ControlModifier);
        test.clickOn("legend-6");
        test.clickOn("categoryFolder-0");
        tryVerify(() => test.isShown("tile-0") && stage.find(test.window, "tile-0").name === "spotify", 10000);
    }
}
