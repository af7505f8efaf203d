import QtQuick
import Orlen.App

/// Smart Scan before a scan: the storage as a ring, and the button that starts one.
Item {
    id: root

    required property HomeModel home
    required property StorageModel storage
    signal categoryChosen(category: int)

    /// Where the storage ring goes.
    readonly property alias ringSlot: slot
    readonly property alias mainButton: start

    ScrollArea {
        id: flickable

        anchors.fill: parent
        contentHeight: page.height

        Item {
            id: page

            width: flickable.width
            height: Math.max(flickable.height, column.height + footer.height + 3 * 24)

            Column {
                id: column

                anchors.horizontalCenter: parent.horizontalCenter
                y: Math.max(24, Math.round((page.height - footer.height - 48 - height) / 2))
                width: page.width - 2 * Theme.pageMargin

                Item {
                    id: slot

                    anchors.horizontalCenter: parent.horizontalCenter
                    width: Math.round(Math.max(168, Math.min(248, root.height * 0.345)))
                    height: width

                    FreeSpace {
                        anchors.centerIn: parent
                        width: parent.width * 0.72
                        storage: root.storage
                        large: true
                    }
                }

                Item {
                    width: parent.width
                    height: Math.max(legend.height, looking.height) + 44

                    StorageLegend {
                        id: legend

                        anchors.centerIn: parent
                        visible: root.storage.ready
                        storage: root.storage
                        room: parent.width
                        onChosen: category => root.categoryChosen(category)
                    }

                    SmallText {
                        id: looking

                        anchors.centerIn: parent
                        visible: !root.storage.ready
                        text: Strings.lookingAtStorage
                        color: Theme.tertiary
                    }
                }

                TitleText {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: Math.min(parent.width, (parent.width < 560 * Theme.textScale ? 360 : 560) * Theme.textScale)
                    horizontalAlignment: Text.AlignHCenter
                    bottomPadding: 20
                    text: Strings.homeLead
                    wrapMode: Text.WordWrap
                }

                AppButton {
                    id: start

                    objectName: "startScan"
                    anchors.horizontalCenter: parent.horizontalCenter
                    primary: true
                    large: true
                    leftPadding: Theme.spaceXl
                    rightPadding: Theme.spaceXl
                    symbol: "sparkles"
                    text: Strings.startScan
                    onClicked: AppModel.results.startScan()
                }

                Item {
                    width: 1
                    height: 16
                }

                ThresholdField {
                    anchors.horizontalCenter: parent.horizontalCenter
                    home: root.home
                }

                AppButton {
                    objectName: "showResults"
                    anchors.horizontalCenter: parent.horizontalCenter
                    visible: root.home.hasFindings
                    quiet: true
                    text: Strings.showResults
                    onClicked: AppModel.results.showResults()
                }
            }

            Paragraph {
                id: footer

                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: parent.bottom
                anchors.bottomMargin: Theme.spaceXl
                width: Math.min(parent.width - 2 * Theme.pageMargin, 760 * Theme.textScale)
                horizontalAlignment: Text.AlignHCenter
                text: Strings.homeFooter
                color: Theme.tertiary
                font.pixelSize: Theme.captionSize
            }
        }
    }
}
