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
        tryCompare(test.item("photoGrid"), "count", 2);
        compare(test.row("photoGrid", 0).name, "squares 240.bmp");
        verify(test.row("photoGrid", 0).kept);
        compare(test.row("photoGrid", 1).name, "squares 200.bmp");
        verify(!test.row("photoGrid", 1).kept);
    }

    function test_3_aPhotoIsLookedAt() {
        test.click(test.row("photoGrid", 1));
        verify(test.row("photoGrid", 1).selected);
        keyClick(Qt.Key_Space);
        tryCompare(test.item("previewPicture"), "implicitWidth", 200);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("previewPicture"));
    }

    function test_4_theSelectedPhotoIsMovedToTheTrash() {
        test.clickOn("reviewPhotos");
        test.row("planEntries", 1);
        test.clickOn("primaryAction");
        test.clickOn("cleaningDone");
        verify(stage.isInTrash("squares 200.bmp"));
        verify(stage.exists("Pictures/squares 240.bmp"));
        tryVerify(() => !test.isShown("photoGrid"));
    }
}
