import QtQuick
import QtTest
import Orlen.App

/// Into folders and back, with the pointer and with the keys.
Journey {
    id: test

    name: "DiskMap"

    function initTestCase() {
        test.openOnboarded();
        keyClick(Qt.Key_5, Qt.ControlModifier);
        test.folder(".cache");
    }

    /// Waits until the map is drawn with this name as the tile of the largest item.
    function folder(largest: string) {
        tryVerify(() => test.isShown("tile-0") && stage.find(test.window, "tile-0").name === largest, 10000,
                  largest + " is the largest");
    }

    function test_1_aClickZoomsIn() {
        test.click(test.tile(".cache"));
        test.folder("spotify");
        test.clickOn("crumb-0");
        test.folder(".cache");
    }

    function test_2_aFileStaysWhereItIs() {
        test.click(test.tile("Videos"));
        test.folder("holidays");
        test.click(test.tile("holidays"));
        test.folder("film.mkv");
        test.click(test.tile("film.mkv"));
        test.folder("film.mkv");
        verify(test.item("diskMapStatus").text.startsWith("film.mkv"));
    }

    function test_3_theKeysDoTheSame() {
        keyClick(Qt.Key_Backspace);
        test.folder("holidays");
        keyClick(Qt.Key_Backspace);
        test.folder(".cache");
        test.tabTo("diskMapSurface");
        keyClick(Qt.Key_Home);
        keyClick(Qt.Key_Return);
        test.folder("spotify");
        test.tabTo("crumb-0");
        keyClick(Qt.Key_Return);
        test.folder(".cache");
    }

    function test_4_theRightButtonShowsWhatIsPressed() {
        mouseMove(test.tile("Videos"));
        mousePress(test.tile("Documents"), 4, 4, Qt.RightButton);
        mouseRelease(test.tile("Documents"), 4, 4, Qt.RightButton);
        tryVerify(() => test.isShown("notice"));
        mousePress(test.tile("Downloads"), 4, 4, Qt.RightButton);
        mouseRelease(test.tile("Downloads"), 4, 4, Qt.RightButton);
        verify(test.item("notice").text.endsWith("/Documents"));
        test.clickOn("closeNotice");
        tryVerify(() => test.isShown("notice") && test.item("notice").text.endsWith("/Downloads"), 5000,
                  "one sentence follows the other");
        test.clickOn("copyPath");
        tryVerify(() => !test.isShown("notice"));
    }

    function test_5_asAList() {
        test.tabTo("diskMapForm");
        keyClick(Qt.Key_Right);
        compare(test.row("diskMapList", 0).name, ".cache");
        test.click(test.row("diskMapList", 0));
        tryVerify(() => test.row("diskMapList", 0).name === "spotify");
        keyClick(Qt.Key_Backspace);
        tryVerify(() => test.row("diskMapList", 0).name === ".cache");
    }

    function tile(name: string): Item {
        for (let number = 0; test.isShown("tile-" + number); ++number) {
            const tile = stage.find(test.window, "tile-" + number);
            if (tile.name === name)
                return tile;
        }
        fail("no tile " + name);
        return null;
    }
}
