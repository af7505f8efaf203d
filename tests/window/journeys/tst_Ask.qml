import QtQuick
import QtTest
import Orlen.App

/// Questions about the storage, and the way from an answer to what it is about.
Journey {
    id: test

    name: "Ask"

    function initTestCase() {
        test.openScanned();
        keyClick(Qt.Key_3, Qt.ControlModifier);
    }

    function test_1_aSuggestionIsAQuestion() {
        test.clickOn("suggestion-2");
        test.hasRows("conversation", 2);
        compare(test.row("conversation", 0).text, test.said("What can I safely free up?"));
        verify(!test.isShown("suggestion-0"));
    }

    function test_2_aTypedQuestionIsAnswered() {
        tryVerify(() => test.isFocused("askField"));
        compare(test.item("sendQuestion").enabled, false);
        test.type("how big are the caches");
        test.clickOn("sendQuestion");
        test.hasRows("conversation", 4);
        compare(test.item("askField").text, "");
        compare(test.row("conversation", 2).text, "how big are the caches");
        verify(test.row("conversation", 3).text !== "");
        keyClick(Qt.Key_Up);
        compare(test.item("askField").text, "how big are the caches");
        keyClick(Qt.Key_Escape);
        compare(test.item("askField").text, "");
    }

    function test_3_aLinkOpensTheFinding() {
        test.clickOn("answerLink-caches", test.row("conversation", 3));
        compare(test.row("findingEntries", 0).name, "spotify");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("findingEntries"));
        compare(test.window.navigation.screen, Screens.Ask);
    }

    function test_4_enterSends() {
        test.clickOn("askField");
        test.type("duplicates");
        keyClick(Qt.Key_Return);
        test.hasRows("conversation", 6);
    }

    function test_5_whatAnAnswerProposesIsReviewed() {
        test.clickOn("askField");
        test.type("what can i delete besides logs");
        keyClick(Qt.Key_Return);
        test.hasRows("conversation", 8);
        test.clickOn("reviewProposal", test.row("conversation", 7));
        test.row("planEntries", 1);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !test.isShown("planEntries"));
        compare(test.window.navigation.screen, Screens.Ask);
    }
}
