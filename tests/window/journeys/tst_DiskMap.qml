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

    function press(tile: Item) {
        mousePress(tile, 4, 4, Qt.RightButton);
        mouseRelease(tile, 4, 4, Qt.RightButton);
    }

    function test_4_theMenuOfWhatIsPressed() {
        mouseMove(test.tile("Videos"));
        test.press(test.tile("Documents"));
        const trash = test.item("menu-" + RowMenuModel.MoveToTrash);
        tryVerify(() => trash.menu.opened);
        verify(trash.menu.title.includes("Documents"), trash.menu.title);
        verify(trash.refusal.includes(test.said("Main folders")), trash.refusal);
        verify(trash.Accessible.name.includes(trash.refusal), "it is said aloud");
        test.click(trash);
        tryVerify(() => test.isShown("notice"));
        verify(test.item("notice").text.includes(test.said("Main folders")), "it stays, and why");
        test.clickOn("closeNotice");
        tryVerify(() => !test.isShown("notice"));
    }

    function test_5_moveToTrash() {
        test.click(test.tile("Videos"));
        test.folder("holidays");
        test.tabTo("diskMapSurface");
        keyClick(Qt.Key_Home);
        keyClick(Qt.Key_F10, Qt.ShiftModifier);
        const trash = test.item("menu-" + RowMenuModel.MoveToTrash);
        tryVerify(() => trash.menu.opened);
        verify(test.item("menu-" + RowMenuModel.Preview).highlighted, "the keyboard begins at the top");
        compare(stage.nameless(test.window).join("\n"), "");
        compare(trash.refusal, "");
        for (let presses = 0; presses < 10 && !trash.highlighted; ++presses)
            keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        compare(test.row("planEntries", 1).name, "holidays");
        test.clickOn("primaryAction");
        test.item("cleaningDone");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("tile-0") || stage.find(test.window, "tile-0").name !== "holidays", 10000,
                  "the map is measured anew");
        keyClick(Qt.Key_8, Qt.ControlModifier);
        test.clickOn("restoreButton");
        keyClick(Qt.Key_5, Qt.ControlModifier);
        test.folder("holidays");
        test.clickOn("crumb-0");
        test.folder(".cache");
    }

    /// Chooses what the colours tell by its place in the menu.
    function colourBy(meaning: int) {
        test.clickOn("mapColours");
        const choice = test.item("colourBy-" + meaning);
        tryVerify(() => choice.menu.opened);
        test.click(choice);
        tryVerify(() => !choice.menu.visible);
    }

    function test_6_whatTheColoursTell() {
        const byKind = test.item("mapColours").text;
        const videos = test.tile("Videos").color;
        test.tabTo("mapColours");
        keyClick(Qt.Key_Return);
        const age = test.item("colourBy-" + TileColours.Age);
        tryVerify(() => age.menu.opened);
        compare(stage.nameless(test.window).join("\n"), "");
        tryVerify(() => {
            if (!age.highlighted)
                keyClick(Qt.Key_Down);
            return age.highlighted;
        });
        keyClick(Qt.Key_Return);
        tryVerify(() => test.item("mapColours").text !== byKind);
        tryVerify(() => test.isFocused("mapColours"), 2000, "the keyboard is where it was");
        compare(test.tile("Videos").color, test.item("mapLegend-0").shown, "it has just been made");
        verify(test.tile("Videos").Accessible.name !== test.tile("Videos").spoken, "it is said aloud");

        test.colourBy(TileColours.Growth);
        tryVerify(() => test.tile("Videos").fact.startsWith("+"));
        compare(test.tile("Videos").color, test.item("mapLegend-4").shown);
        test.item("mapLegendNote");
        test.colourBy(TileColours.Rating);
        tryVerify(() => test.tile("Videos").fact === test.item("mapLegend-4").modelData);
        mouseMove(test.tile("Videos"));
        tryVerify(() => test.item("diskMapStatus").text.endsWith(test.tile("Videos").fact));
        test.colourBy(TileColours.Kind);
        tryVerify(() => test.tile("Videos").color === videos);
    }

    function test_7_asAList() {
        test.tabTo("diskMapForm");
        keyClick(Qt.Key_Right);
        compare(test.row("diskMapList", 0).name, ".cache");
        test.click(test.row("diskMapList", 0));
        tryVerify(() => test.row("diskMapList", 0).name === "spotify");
        keyClick(Qt.Key_Backspace);
        tryVerify(() => test.row("diskMapList", 0).name === ".cache");
    }

    function test_8_filterAndSort() {
        keyClick(Qt.Key_F, Qt.ControlModifier);
        tryVerify(() => test.isFocused("diskMapFilter"));
        test.type("vide");
        test.hasRows("diskMapList", 1);
        compare(test.row("diskMapList", 0).name, "Videos");
        keyClick(Qt.Key_Return);
        wait(50);
        compare(test.row("diskMapList", 0).name, "Videos", "Enter in the field opens nothing");
        test.click(test.row("diskMapList", 0));
        tryVerify(() => test.row("diskMapList", 0).name === "holidays", 5000, "it is the row that opens");
        compare(test.item("diskMapFilter").text, "", "another folder, another filter");
        test.clickOn("crumb-0");
        tryVerify(() => test.row("diskMapList", 0).name === ".cache");
        test.clickOn("diskMapFilter-1");
        tryVerify(() => test.row("diskMapList", 0).name !== ".cache" || test.row("diskMapList", 1).name.startsWith("."));
        const first = test.row("diskMapList", 0).name;
        test.clickOn("diskMapFilter-1");
        tryVerify(() => test.row("diskMapList", 0).name !== first, 2000, "the other way round");
        test.tabTo("diskMapList");
        keyClick(Qt.Key_End);
        tryCompare(test.item("diskMapList"), "currentIndex", test.item("diskMapList").count - 1);
        test.clickOn("diskMapFilter-0");
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
