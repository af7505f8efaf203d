import QtQuick
import QtTest
import Orlen.App

/// Smart Photos: a scan that is given up while it looks at photos, and two that are alike.
Journey {
    id: test

    name: "Photos"

    function initTestCase() {
        test.openOnboarded();
    }

    function test_1_aScanThatHangsOnAPhotoIsGivenUpAtOnce() {
        stage.setRecognizing(false);
        test.clickOn("startScan");
        test.clickOn("cancelScan");
        test.item("startScan");
        verify(!test.isShown("heroSentence"));
        stage.setRecognizing(true);
    }

    function test_2_similarPhotosStandBesideTheOneThatIsKept() {
        test.clickOn("startScan");
        test.item("heroSentence");
        test.window.navigation.screen = Screens.Photos;
        test.clickOn("showAll");
        test.hasRows("photoSets", 1);
        test.hasRows("photoSet", 2);
        compare(test.row("photoSet", 0).name, "squares 240.bmp");
        verify(test.row("photoSet", 0).kept);
        compare(test.row("photoSet", 1).name, "squares 200.bmp");
        verify(!test.row("photoSet", 1).kept);
    }

    function test_3_aPhotoIsLookedAt() {
        test.click(test.row("photoSet", 1));
        verify(test.row("photoSet", 1).selected);
        keyClick(Qt.Key_Space);
        tryCompare(test.item("previewPicture"), "implicitWidth", 200);
        keyClick(Qt.Key_Plus);
        test.item("previewDetail");
        keyClick(Qt.Key_0);
        tryVerify(() => !test.isShown("previewDetail"));
        test.clickOn("previewZoomIn");
        test.item("previewDetail");
        keyClick(Qt.Key_Return);
        tryCompare(test.item("previewTick"), "checkState", Qt.Unchecked);
        verify(!test.row("photoSet", 1).selected, "Enter ticks what is looked at");
        test.clickOn("previewTick");
        tryVerify(() => test.row("photoSet", 1).selected);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("previewPicture"));
    }

    function test_4_aSetIsComparedByKeys() {
        keyClick(Qt.Key_Left);
        compare(test.item("photoSet").currentIndex, 0);
        keyClick(Qt.Key_Right);
        compare(test.item("photoSet").currentIndex, 1);
        keyClick(Qt.Key_Return);
        verify(test.item("comparePhoto1").kept);
        const other = test.item("comparePhoto2");
        verify(other.selected);
        // All but the folder differ or are absent alike: both are bitmaps without camera data.
        tryVerify(() => other.facts.length === 6);
        compare(other.pixels.width, 200);
        tryVerify(() => (other.differing & 3) === 3, 5000, "pixels and bytes differ");
        compare(other.differing & 48, 0, "camera data and folder do not");
        verify(!test.isShown("compareDetail"));
        test.clickOn("actualSize");
        for (let presses = 0; presses < 12; ++presses)
            keyClick(Qt.Key_Plus);
        verify(!other.zoom.fitted);
        test.item("compareDetail");
        keyClick(Qt.Key_0);
        verify(other.zoom.fitted);
        keyClick(Qt.Key_Space);
        verify(test.isShown("comparePhoto2") && !test.isShown("comparePhoto1"));
        keyClick(Qt.Key_Space);
        verify(test.isShown("comparePhoto1") && !test.isShown("comparePhoto2"));
        keyClick(Qt.Key_F);
        verify(test.isShown("comparePhoto1") && test.isShown("comparePhoto2"));
    }

    function test_5_anotherPhotoIsKept() {
        keyClick(Qt.Key_2);
        tryVerify(() => test.item("comparePhoto2").kept);
        verify(!test.item("comparePhoto1").kept);
        verify(test.item("comparePhoto1").selected, "the tick follows");
        verify(!test.item("comparePhoto2").selected);
        keyClick(Qt.Key_X);
        verify(!test.item("comparePhoto1").selected, "all are kept");
        keyClick(Qt.Key_1);
        tryVerify(() => test.item("comparePhoto1").kept);
        verify(!test.item("comparePhoto2").selected);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("comparePhoto1"));
        compare(test.row("photoSet", 0).name, "squares 240.bmp");
        test.click(test.row("photoSet", 1));
        verify(test.row("photoSet", 1).selected);
    }

    function test_6_theSelectedPhotoIsMovedToTheTrash() {
        test.clickOn("reviewPhotos");
        test.row("planEntries", 1);
        test.clickOn("primaryAction");
        test.clickOn("cleaningDone");
        verify(stage.isInTrash("squares 200.bmp"));
        verify(stage.exists("Pictures/squares 240.bmp"));
        tryVerify(() => !test.isShown("photoSet"));
    }
}
