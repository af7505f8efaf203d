import QtQuick
import Orlen.App

/// The animated storage ring: springs to a new breakdown and pulses during work. A category is chosen with the
/// pointer, or with the arrow keys and Enter.
StorageRing {
    id: root

    property bool breathing: false
    /// Whether categories can be chosen.
    property bool selectable: true
    signal chosen(category: int)

    readonly property bool isUsable: root.selectable && root.storage.ready
    /// The category that the keyboard was last on, and the one under the pointer; -1 for none.
    property int keyed: -1
    property int pointed: -1

    thickness: 0.095
    track: Theme.track
    Accessible.role: Accessible.Chart
    Accessible.name: root.current >= 0 ? root.storage.describe(root.current) : root.storage.freeSentence
    Accessible.description: root.isUsable ? Strings.chooseCategory : ""
    Accessible.focusable: root.isUsable
    Accessible.onPressAction: root.choose(root.keyed >= 0 ? root.keyed : root.neighbour(-1, 1))
    objectName: "storageRing"
    activeFocusOnTab: root.isUsable
    current: root.pointed >= 0 ? root.pointed : root.activeFocus ? root.keyed : -1

    onRetargeted: motion.restart()
    onActiveFocusChanged: {
        if (root.activeFocus && root.keyed < 0)
            root.keyed = root.neighbour(-1, 1);
    }

    Keys.enabled: root.isUsable
    Keys.onRightPressed: root.keyed = root.neighbour(root.keyed, 1)
    Keys.onDownPressed: root.keyed = root.neighbour(root.keyed, 1)
    Keys.onLeftPressed: root.keyed = root.neighbour(root.keyed, -1)
    Keys.onUpPressed: root.keyed = root.neighbour(root.keyed, -1)
    Keys.onReturnPressed: root.choose(root.keyed)
    Keys.onEnterPressed: root.choose(root.keyed)
    Keys.onSpacePressed: root.choose(root.keyed)

    FocusRing {
        shown: root.activeFocus
        shape: root.width / 2
    }

    MouseArea {
        anchors.fill: parent
        enabled: root.isUsable
        hoverEnabled: true
        cursorShape: root.pointed >= 0 ? Qt.PointingHandCursor : Qt.ArrowCursor
        onPositionChanged: mouse => root.pointed = root.categoryAt(Qt.point(mouse.x, mouse.y))
        onExited: root.pointed = -1
        onEnabledChanged: root.pointed = -1
        onClicked: mouse => root.choose(root.categoryAt(Qt.point(mouse.x, mouse.y)))
    }

    ToolTipBubble {
        shown: root.current >= 0
        delay: 150
        text: root.storage.describe(root.current)
    }

    SpringMotion {
        id: motion

        target: root
        property: "progress"
        from: 0
        to: 1
        response: 0.9
        damping: 0.85
    }

    SequentialAnimation {
        running: root.breathing && Theme.moves && root.visible
        loops: Animation.Infinite
        onStopped: root.opacity = 1

        NumberAnimation {
            target: root
            property: "opacity"
            from: 1
            to: 0.55
            duration: 1600
            easing.type: Easing.InOutSine
        }
        NumberAnimation {
            target: root
            property: "opacity"
            from: 0.55
            to: 1
            duration: 1600
            easing.type: Easing.InOutSine
        }
    }

    function choose(category: int) {
        root.pointed = -1;
        if (category >= 0)
            root.chosen(category);
    }
}
