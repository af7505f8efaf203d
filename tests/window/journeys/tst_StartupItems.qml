import QtQuick
import QtTest
import Orlen.App

/// What starts at login, off and on again.
Journey {
    id: test

    readonly property string entry: ".config/autostart/notes.desktop"

    name: "StartupItems"

    function initTestCase() {
        test.openOnboarded();
        keyClick(Qt.Key_7, Qt.ControlModifier);
    }

    /// The row of the agent, wherever the agents of the system put it.
    function agent(): Item {
        tryVerify(() => test.item("startupList").count > 0);
        const list = test.item("startupList");
        for (let number = 0; number < list.count; ++number) {
            if (list.itemAtIndex(number).name === "Quick Notes")
                return list.itemAtIndex(number);
        }
        fail("the agent is listed");
        return null;
    }

    function test_1_thePointerSwitchesItOff() {
        compare(test.agent().isOn, true);
        test.clickOn("switch", test.agent());
        tryVerify(() => stage.content(test.entry).includes("Hidden=true"));
        tryVerify(() => !test.agent().isBusy);
        compare(test.agent().isOn, false);
    }

    function test_1b_theNoticeUndoesIt() {
        test.clickOn("undoNotice");
        tryVerify(() => !stage.content(test.entry).includes("Hidden=true"));
        tryVerify(() => test.agent().isOn && !test.agent().isBusy);
        test.clickOn("switch", test.agent());
        tryVerify(() => stage.content(test.entry).includes("Hidden=true") && !test.agent().isBusy);
    }

    function test_1c_theFilterFindsItByItsCommand() {
        keyClick(Qt.Key_F, Qt.ControlModifier);
        verify(test.isFocused("startupFilter"));
        test.type("bin/true");
        test.hasRows("startupList", 1);
        verify(test.agent().Accessible.description.includes("/usr/bin/true"));
        test.type("zzz");
        test.hasRows("startupList", 0);
        keyClick(Qt.Key_A, Qt.ControlModifier);
        keyClick(Qt.Key_Delete);
        verify(test.agent() !== null);
    }

    function test_2_theKeyboardSwitchesItOn() {
        test.tabTo("startupList");
        const list = test.item("startupList");
        while (list.currentIndex < list.count - 1 && list.currentItem.name !== "Quick Notes")
            keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Space);
        tryVerify(() => !stage.content(test.entry).includes("Hidden=true"));
        tryVerify(() => !test.agent().isBusy);
        compare(test.agent().isOn, true);
        verify(stage.content(test.entry).includes("Name=Quick Notes"));
    }

    function test_3_whatChangedMeanwhileIsReadAgain() {
        stage.write(test.entry, "[Desktop Entry]\nType=Application\nName=Quick Notes\nExec=/usr/bin/true\nHidden=true\n");
        test.clickOn("reloadStartup");
        tryVerify(() => !test.agent().isOn);
    }

    function test_4_whatCannotBeSwitchedSaysWhy() {
        stage.write("notes.desktop", stage.content(test.entry));
        stage.link(test.entry, "notes.desktop");
        test.clickOn("reloadStartup");
        tryVerify(() => !test.agent().isSwitchable);
        const toggle = stage.find(test.agent(), "switch");
        compare(toggle.enabled, false);
        verify(toggle.Accessible.description.includes(test.said("Its file is a link; change the file that the link points to.")));
        mouseClick(toggle);
        wait(50);
        compare(test.agent().isOn, false);
        compare(test.agent().isBusy, false);
    }

    function test_5_thisProgramOpensAtLogin() {
        const own = ".config/autostart/orlen.desktop";
        compare(test.item("openAtLogin").checked, false);
        test.clickOn("openAtLogin");
        tryVerify(() => stage.exists(own) && test.item("openAtLogin").checkable);
        compare(test.item("openAtLogin").checked, true);
        test.tabTo("openAtLogin");
        keyClick(Qt.Key_Space);
        tryVerify(() => !stage.exists(own) && test.item("openAtLogin").checkable);
        compare(test.item("openAtLogin").checked, false);
    }
}
