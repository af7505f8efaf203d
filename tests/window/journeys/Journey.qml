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

    function open() {
        failOnWarning(/.?/);
        test.window = main.createObject(null);
        test.parent = test.window.contentItem;
        test.window.requestActivate();
        verify(waitForRendering(test.window.contentItem));
    }

    function shut() {
        test.parent = null;
        test.window.destroy();
        wait(0);
    }

    /// The item with this object name, once it is there, shown and at rest.
    function item(name: string): Item {
        tryVerify(() => test.isShown(findChild(test.window, name)), 10000, name + " is shown");
        return findChild(test.window, name);
    }

    function isShown(item: Item): bool {
        return item !== null && item.visible && item.width > 0 && item.enabled;
    }

    function clickOn(name: string) {
        const target = test.item(name);
        waitForRendering(target);
        mouseClick(target);
    }
}
