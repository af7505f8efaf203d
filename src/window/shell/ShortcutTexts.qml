import QtQuick
import Orlen.App

/// The texts of the keyboard shortcuts.
QtObject {
    id: root

    readonly property string title: Words.message("Keyboard shortcuts")
    // TRANSLATORS: The next ones are written on keys, short as there.
    readonly property string ctrl: Words.messageIn("key", "Ctrl")
    readonly property string shift: Words.messageIn("key", "Shift")
    readonly property string tab: Words.messageIn("key", "Tab")
    readonly property string esc: Words.messageIn("key", "Esc")
    readonly property string enter: Words.messageIn("key", "Enter")
    readonly property string space: Words.messageIn("key", "Space")
    readonly property string backspace: Words.messageIn("key", "Backspace")
    readonly property string homeKey: Words.messageIn("key", "Home")
    readonly property string endKey: Words.messageIn("key", "End")
    readonly property string pageUp: Words.messageIn("key", "PgUp")
    readonly property string pageDown: Words.messageIn("key", "PgDn")
    readonly property string menuKey: Words.messageIn("key", "Menu")
    readonly property string wheel: Words.messageIn("key", "Wheel")
    readonly property string zoomInOrOut: Words.message("Zoom in or out")
    readonly property var groups: [
        {
            title: Words.message("Everywhere"),
            shortcuts: [
                { text: Words.message("Show a screen"), keys: [[root.ctrl, "1 … 9"]] },
                { text: Words.message("Start a Smart Scan"), keys: [[root.ctrl, "R"]] },
                { text: Words.message("Filter the list"), keys: [[root.ctrl, "F"]] },
                { text: Words.message("Next or previous control"), keys: [[root.tab], [root.shift, root.tab]] },
                { text: Words.message("Close a sheet"), keys: [[root.esc]] },
                { text: Words.message("Undo what a notice tells of"), keys: [[root.ctrl, "Z"]] },
                { text: Words.message("Go to a notice and back"), keys: [["F6"]] },
                { text: Words.message("Show these shortcuts"), keys: [[root.ctrl, "?"], ["F1"]] },
                { text: Words.messageIn("shortcut", "Quit"), keys: [[root.ctrl, "Q"], [root.ctrl, "W"]] }
            ]
        },
        {
            title: Words.message("Lists and cards"),
            shortcuts: [
                { text: Words.messageIn("shortcut", "Move"), keys: [["←"], ["↑"], ["↓"], ["→"]] },
                { text: Words.message("First or last"), keys: [[root.homeKey], [root.endKey]] },
                { text: Words.message("A page up or down"), keys: [[root.pageUp], [root.pageDown]] },
                { text: Words.messageIn("shortcut", "Open"), keys: [[root.enter]] },
                { text: Words.message("Preview a file"), keys: [[root.space]] },
                { text: Words.message("Menu of a file"), keys: [[root.shift, "F10"], [root.menuKey]] },
                { text: Words.message("Reload the map, apps or startup items"), keys: [["F5"]] }
            ]
        },
        {
            title: Strings.preview,
            shortcuts: [
                { text: Words.message("Next or previous file"), keys: [["↓"], ["↑"]] },
                { text: Words.message("Tick the file"), keys: [[root.enter]] },
                { text: root.zoomInOrOut, keys: [["+"], ["−"]] },
                { text: Words.message("Fit the picture, or show its pixels"), keys: [["0"], ["1"]] },
                { text: Words.message("Scroll a preview"), keys: [[root.pageUp], [root.pageDown]] }
            ]
        },
        {
            title: Words.message("Similar photos"),
            shortcuts: [
                { text: Words.message("Compare a set"), keys: [[root.enter]] },
                { text: Words.message("Select a photo"), keys: [[root.ctrl, root.space]] },
                { text: Words.message("Keep one of a set, or all"), keys: [["1 … 4"], ["X"]] },
                { text: Words.message("Flip between two"), keys: [[root.space]] },
                { text: root.zoomInOrOut, keys: [["+"], ["−"]] },
                { text: Words.message("Previous or next set"), keys: [["←"], ["→"]] }
            ]
        },
        {
            title: Screens.title(Screens.DiskMap),
            shortcuts: [
                { text: Words.message("Zoom into a folder"), keys: [[root.enter]] },
                { text: Strings.goUp, keys: [[root.backspace]] },
                { text: Words.message("Zoom with the wheel"), keys: [[root.ctrl, root.wheel]] }
            ]
        }
    ]
}
