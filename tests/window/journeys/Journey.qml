import QtQuick
import QtTest
import Orlen.App

/// A way through the whole window. Keys go to the window because the test stands in it.
TestCase {
    id: test

    property Main window: null

    when: true

    Component {
        id: main

        Main {}
    }

    // Anything that the program writes on its way is a fault, but for what a list view notes when rows leave that it
    // was still making.
    readonly property var fault: /^(?!DelegateModel::cancel: index out range)/

    function init() {
        failOnWarning(test.fault);
    }

    function initTestCase() {
        test.open();
    }

    function cleanupTestCase() {
        test.parent = null;
        test.window.destroy();
        wait(0);
    }

    /// What a text of the program, or the one for a number of things, is in the language of the journey.
    function said(text: string, places: var): string {
        return Words.message(text, places ?? {});
    }

    function saidOf(count: int, one: string, many: string, places: var): string {
        return Words.messages(one, many, Object.assign({ count: count }, places ?? {}));
    }

    function selectedOf(count: int, total: int): string {
        return test.saidOf(count, "{count} of {total} selected", "{count} of {total} selected", { total: total });
    }

    function moved(count: int): string {
        return test.saidOf(count, "{count} moved to the Trash", "{count} moved to the Trash");
    }

    function restored(count: int): string {
        return test.saidOf(count, "Restored {count} item.", "Restored {count} items.");
    }

    function open() {
        failOnWarning(test.fault);
        test.window = main.createObject(null, { width: 1100, height: 720 });
        test.parent = test.window.contentItem;
        test.window.requestActivate();
        tryVerify(() => test.window.active);
        verify(waitForRendering(test.window.contentItem));
    }

    /// Begins where a user is after the first start.
    function openOnboarded() {
        test.open();
        test.window.navigation.finishOnboarding();
        test.item("startScan");
    }

    /// Begins with the results of a scan.
    function openScanned() {
        test.openOnboarded();
        AppModel.results.startScan();
        test.item("heroSentence");
    }

    /// The item with this object name, once it can be seen; in the whole window unless told where.
    function item(name: string, within: QtObject): Item {
        const where = within ?? test.window;
        tryVerify(() => stage.find(where, name) !== null, 10000, name + " is shown");
        return stage.find(where, name);
    }

    function isShown(name: string): bool {
        return stage.find(test.window, name) !== null;
    }

    /// Waits until a list has this many rows; one that cannot be seen has none.
    function hasRows(list: string, count: int) {
        tryVerify(() => {
            const shown = stage.find(test.window, list);
            return (shown === null ? 0 : shown.count) === count;
        }, 10000, list + " has " + count + " rows");
    }

    /// The row of a list with this number, once it is there.
    function row(list: string, number: int): Item {
        tryVerify(() => test.item(list).itemAtIndex(number) !== null, 10000, list + " has row " + number);
        return test.item(list).itemAtIndex(number);
    }

    /// Whether the item with this name, or something in it, has the keyboard.
    function isFocused(name: string): bool {
        let item = test.window.activeFocusItem;
        while (item !== null && item.objectName !== name)
            item = item.parent;
        return item !== null;
    }

    /// Presses Tab until the item with this name has the keyboard.
    function tabTo(name: string) {
        for (let presses = 0; presses < 40 && !test.isFocused(name); ++presses)
            keyClick(Qt.Key_Tab);
        verify(test.isFocused(name), name + " is reached by Tab");
    }

    function type(text: string) {
        for (const letter of text)
            keyClick(letter);
    }

    function clickOn(name: string, within: QtObject) {
        test.click(test.item(name, within));
    }

    /// In the middle, where it must be in the window and in use, once it no longer moves.
    function click(target: Item) {
        tryVerify(() => target.enabled, 5000, target + " is enabled");
        // What has just changed may not have moved yet.
        waitForRendering(test.window.contentItem, 40);
        let middle = Qt.point(-1, -1);
        tryVerify(() => {
            const last = middle;
            middle = target.mapToItem(null, target.width / 2, target.height / 2);
            return middle === last;
        }, 5000, target + " stands still");
        verify(middle.x > 0 && middle.x < test.window.width, target + " is in the window");
        verify(middle.y > 0 && middle.y < test.window.height, target + " is in the window");
        mouseMove(target);
        mouseClick(target);
    }
}
