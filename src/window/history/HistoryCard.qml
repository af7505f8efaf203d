import QtQuick
import Orlen.App

/// One past clean-up, which unfolds to show its items.
Card {
    id: root

    required property string title
    required property string symbol
    required property color tone
    required property string date
    required property string summary
    required property string freed
    required property int status
    required property real progress
    required property string progressText
    required property bool stopping
    required property string recordId

    property bool current: false
    property bool ringed: false
    property bool open: false
    property bool writable: true
    /// Which of the items are shown.
    property string query: ""
    readonly property bool isRestoring: root.status === HistoryModel.Restoring
    readonly property bool isNarrow: root.width < 600 * Theme.textScale
    /// Whether the buttons stand below the texts rather than beside them.
    readonly property bool isStacked: root.width < 460 * Theme.textScale
    readonly property int tabPolicy: root.current ? Qt.StrongFocus : Qt.ClickFocus

    signal pressed
    signal toggled
    signal restoreRequested(fromKeyboard: bool)
    signal stopRequested(fromKeyboard: bool)

    /// The button gets disabled and must not take the focus with it.
    function keepFocus(fromKeyboard: bool) {
        if (fromKeyboard)
            root.forceActiveFocus();
    }

    height: head.height + unfolded.height
    border.color: area.containsMouse ? Theme.accent : Theme.stroke
    // Not the list, which would remember that the keyboard was in the items, and lead there past all else.
    activeFocusOnTab: root.current
    Accessible.role: Accessible.ListItem
    Accessible.name: Strings.spoken([root.title, root.date, root.summary, root.freed])

    Ease on border.color {}

    FocusRing {
        shown: root.ringed
        shape: Theme.cardRadius
    }

    MouseArea {
        id: area

        anchors.fill: head
        hoverEnabled: true
        onPressed: root.pressed()
        onClicked: root.toggled()
    }

    Item {
        id: head

        width: parent.width
        height: root.isStacked ? labels.height + trailing.height + 40 : Math.max(76, labels.height + 32)

        Badge {
            id: badge

            anchors.left: parent.left
            anchors.leftMargin: Theme.cardMargin
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            tone: root.tone
            size: 40
        }

        Column {
            id: labels

            anchors.left: badge.right
            anchors.leftMargin: Theme.spaceM
            anchors.right: root.isStacked ? parent.right : trailing.left
            anchors.rightMargin: Theme.spaceL
            y: root.isStacked ? Theme.spaceL : (parent.height - height) / 2
            spacing: Theme.spaceXs

            HeadlineText {
                width: parent.width
                text: root.title
                wrapMode: Text.WordWrap
                maximumLineCount: 3
                Accessible.ignored: true
            }

            SmallText {
                width: parent.width
                text: root.isRestoring ? Words.facts([Strings.restoring, root.progressText])
                                       : Words.facts([root.date, root.isNarrow ? root.freed : "", root.summary])
                wrapMode: Text.WordWrap
                maximumLineCount: 6
                Accessible.ignored: true
            }
        }

        Row {
            id: trailing

            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceM
            y: root.isStacked ? labels.y + labels.height + Theme.spaceS : (parent.height - height) / 2
            spacing: Theme.spaceS

            HeadlineText {
                anchors.verticalCenter: parent.verticalCenter
                leftPadding: Theme.mirrored ? Theme.spaceM : 0
                rightPadding: Theme.mirrored ? 0 : Theme.spaceM
                visible: !root.isNarrow
                text: root.freed
                font.weight: Font.Bold
                Accessible.ignored: true
            }

            AppButton {
                id: restore

                objectName: "restoreButton"
                width: Math.max(implicitWidth, Theme.grown(112))
                visible: root.status !== HistoryModel.Gone
                quiet: root.status === HistoryModel.Restored
                enabled: root.isRestoring ? !root.stopping : root.writable && root.status === HistoryModel.Restorable
                symbol: root.status === HistoryModel.Restored ? "checkmark" : ""
                text: root.status === HistoryModel.Restored ? Strings.restored
                      : !root.isRestoring ? Strings.restore : root.stopping ? Strings.stopping : Strings.stop
                focusPolicy: root.tabPolicy
                Accessible.name: root.status === HistoryModel.Restorable
                                 ? Strings.restoreOf(root.title, root.date) : restore.text
                onClicked: {
                    if (root.isRestoring)
                        root.stopRequested(restore.visualFocus);
                    else
                        root.restoreRequested(restore.visualFocus);
                }
            }

            IconButton {
                objectName: "unfoldButton"
                symbol: "chevron.down"
                symbolSize: 14
                rotation: root.open ? 180 : 0
                text: root.open ? Strings.hideItems : Strings.showItems
                focusPolicy: root.tabPolicy
                onClicked: root.toggled()

                Ease on rotation {
                    duration: Theme.screenDuration
                }
            }
        }
    }

    ProgressBar {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: head.bottom
        anchors.leftMargin: Theme.cardMargin
        anchors.rightMargin: Theme.cardMargin
        visible: root.isRestoring
        value: root.progress
        Accessible.name: root.progressText
    }

    Item {
        id: unfolded

        anchors.top: head.bottom
        width: parent.width
        height: root.open ? loader.height : 0
        clip: true

        Ease on height {
            duration: Theme.screenDuration
        }

        Loader {
            id: loader

            width: parent.width
            active: root.open || unfolded.height > 0
            sourceComponent: HistoryItems {
                recordId: root.recordId
                title: root.title
                query: root.query
                isNarrow: root.isNarrow
            }
        }
    }
}
