import QtQuick
import QtTest
import Orlen.App
import "../journeys"

/// In a language that is written from right to left, everything stands the other way round.
Journey {
    id: test

    name: "Mirrored"

    function middle(item: Item): real {
        return item.mapToItem(null, item.width / 2, 0).x;
    }

    function initTestCase() {
        test.openScanned();
    }

    function test_1_theScreensAreListedAtTheRight() {
        verify(Theme.mirrored);
        verify(test.middle(test.item("heroSentence")) < test.middle(test.item("storageRing")));
        verify(test.middle(test.item("sidebar")) > test.middle(test.item("heroSentence")));
    }

    function test_2_keysFollowTheEyes() {
        const cards = test.item("findings");
        test.tabTo("findings");
        const first = test.middle(test.window.activeFocusItem);
        keyClick(Qt.Key_Left);
        verify(test.middle(test.window.activeFocusItem) < first);
        keyClick(Qt.Key_Right);
        compare(test.middle(test.window.activeFocusItem), first);
    }

    function test_3_sheetsToo() {
        test.clickOn("finding-caches");
        const row = test.row("findingEntries", 0);
        verify(test.middle(stage.find(row, "check")) > test.middle(row));
        verify(test.middle(test.item("closeSheet")) < test.middle(test.item("findingEntries")));
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("findingEntries"));
    }

    function test_4_photosToo() {
        test.window.navigation.screen = Screens.Photos;
        test.clickOn("showAll");
        test.hasRows("photoSet", 2);
        verify(test.middle(test.row("photoSet", 0)) > test.middle(test.row("photoSet", 1)));
        keyClick(Qt.Key_Left);
        compare(test.item("photoSet").currentIndex, 1);
        keyClick(Qt.Key_Right);
        compare(test.item("photoSet").currentIndex, 0);
        keyClick(Qt.Key_Return);
        verify(test.middle(test.item("comparePhoto1")) > test.middle(test.item("comparePhoto2")));
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("comparePhoto1"));
    }

    function test_5_theDiskMapStays() {
        test.window.navigation.screen = Screens.DiskMap;
        const tile = test.item("tile-0");
        compare(tile.x, tile.area.x);
    }
}
