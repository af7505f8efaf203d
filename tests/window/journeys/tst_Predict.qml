import QtQuick
import QtTest
import Orlen.App

/// What grew, and the chart of free space, with the pointer and with the keys.
Journey {
    id: test

    name: "Predict"

    function initTestCase() {
        test.openOnboarded();
        keyClick(Qt.Key_4, Qt.ControlModifier);
        test.item("growthSentence");
    }

    function test_1_thePeriodIsChosen() {
        compare(test.item("grown-0").name, "Videos");
        verify(!test.isShown("grown-1"));
        const growth = test.item("grown-0").growth;
        test.clickOn("sinceWeek");
        verify(test.item("grown-0").growth !== growth);
        verify(!test.isShown("grown-1"));
        test.tabTo("sinceMonth");
        keyClick(Qt.Key_Space);
        compare(test.item("grown-1").name, ".cache");
        compare(stage.nameless(test.window), []);
    }

    function test_2_theKeysReadTheChart() {
        verify(!test.isShown("forecastMark"));
        test.tabTo("forecastChart");
        keyClick(Qt.Key_Right);
        const now = test.item("forecastMark").text;
        keyClick(Qt.Key_Right);
        verify(test.item("forecastMark").text !== now);
        keyClick(Qt.Key_Left);
        compare(test.item("forecastMark").text, now);
        keyClick(Qt.Key_Left);
        verify(test.item("forecastMark").text !== now);
        keyClick(Qt.Key_Tab);
        tryVerify(() => !test.isShown("forecastMark"));
    }

    function test_3_andThePointer() {
        test.tabTo("forecastChart");
        const chart = test.item("forecastChart");
        mouseMove(chart, 6, 30);
        const first = test.item("forecastMark").text;
        mouseMove(chart, chart.width - 6, 30);
        verify(test.item("forecastMark").text !== first);
        mouseMove(chart, -20, -20);
        tryVerify(() => !test.isShown("forecastMark"));
    }

    function test_4_aFolderOpensInTheDiskMap() {
        test.clickOn("grown-0");
        compare(test.window.navigation.screen, Screens.DiskMap);
        tryVerify(() => test.isShown("tile-0") && stage.find(test.window, "tile-0").name === "holidays", 10000);
    }
}
