import QtQuick
import QtTest
import Orlen.App

/// A new user: the first start, a scan, a clean-up with one item left out, and the way back.
TestCase {
    id: test

    property Main window: null

    name: "FirstStart"
    when: true

    Component {
        id: main

        Main {}
    }

    function initTestCase() {
        failOnWarning(/.?/);
        test.window = main.createObject(null);
        verify(waitForRendering(test.window.contentItem));
    }

    function test_1_onboarding() {
        compare(test.window.navigation.onboarded, false);
        keyClick(Qt.Key_Tab);
    }
}
