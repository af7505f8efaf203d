import QtQuick
import Orlen.App

/// Shown once to a new user: what the program is, and what it promises.
Item {
    id: root

    signal finished

    /// Whether a sandbox hides the home folder.
    readonly property bool isHidden: !access.granted && access.command !== ""

    DiskAccessModel {
        id: access
    }

    ScrollArea {
        id: flickable

        anchors.fill: parent
        contentHeight: page.height

        Item {
            id: page

            width: flickable.width
            height: Math.max(flickable.height, column.height + 2 * 28)

            Column {
                id: column

                anchors.horizontalCenter: parent.horizontalCenter
                y: Math.max(28, Math.round((page.height - height) / 2))
                width: Math.min(page.width - 2 * Theme.pageMargin, Math.round(940 * Math.min(1.2, Theme.textScale)))

                Badge {
                    anchors.horizontalCenter: parent.horizontalCenter
                    name: "sparkles"
                    tone: Theme.welcomeTone
                    size: root.height < 660 ? 56 : 72
                }

                TitleText {
                    width: parent.width
                    topPadding: Theme.spaceM
                    horizontalAlignment: Text.AlignHCenter
                    text: Strings.welcomeTitle
                    wrapMode: Text.WordWrap
                    font.pixelSize: Theme.heroSize
                    font.letterSpacing: -1
                }

                LeadText {
                    width: parent.width
                    topPadding: Theme.spaceXs
                    bottomPadding: root.height < 660 ? Theme.spaceL : Theme.spaceXl
                    horizontalAlignment: Text.AlignHCenter
                    text: Strings.welcomeSubtitle
                }

                TextCardGrid {
                    width: parent.width
                    texts: Strings.promises
                    tones: Theme.promiseTones
                    most: column.width < 700 * Theme.textScale ? 1 : 3
                    narrowest: 200
                    beside: most === 1
                }

                Item {
                    width: 1
                    height: 16
                }

                AccessCard {
                    id: accessCard

                    width: parent.width
                    visible: root.isHidden
                    access: access
                    onReached: flickable.show(accessCard, Theme.spaceL)
                }

                Item {
                    width: 1
                    height: 16
                    visible: root.isHidden
                }

                AppButton {
                    id: go

                    objectName: "continue"
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: Math.max(implicitWidth, 168)
                    primary: true
                    large: true
                    text: root.isHidden ? Strings.continueWithoutIt : Strings.continueOn
                    onClicked: root.finished()
                    onActiveFocusChanged: {
                        if (go.activeFocus)
                            flickable.show(go, Theme.spaceXl);
                    }
                }
            }
        }
    }
}
