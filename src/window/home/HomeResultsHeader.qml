import QtQuick
import Orlen.App

/// Above the findings: the storage, what can be freed, and what to do about it.
Item {
    id: root

    required property HomeModel home
    required property StorageModel storage
    signal categoryChosen(category: int)

    /// Where the storage ring goes.
    readonly property alias ringSlot: slot
    /// Whether another scan is what to do next.
    readonly property bool isOutdated: root.home.outdatedText !== ""
    readonly property Item mainButton: review.enabled && !root.isOutdated ? review : again
    readonly property bool narrow: root.width < 640 * Theme.textScale

    implicitHeight: Math.max(slot.height, words.height) + (root.narrow ? legend.height + 20 : 0)

    Item {
        id: slot

        anchors.left: parent.left
        width: root.narrow ? Math.round(112 * Math.min(1.25, Theme.textScale)) : 164
        height: width

        FreeSpace {
            anchors.centerIn: parent
            width: parent.width * 0.72
            storage: root.storage
        }
    }

    Column {
        id: words

        anchors.left: slot.right
        anchors.leftMargin: root.narrow ? 20 : 32
        anchors.right: parent.right
        y: Math.max(0, Math.round((slot.height - height) / 2))
        bottomPadding: root.narrow ? 0 : legend.height + 16

        TitleText {
            objectName: "heroSentence"
            width: parent.width
            text: root.home.heroText
            wrapMode: Text.WordWrap
            font.pixelSize: root.narrow ? Theme.titleSize : Theme.heroSize
            font.letterSpacing: root.narrow ? -0.3 : -1
        }

        BodyText {
            objectName: "selectedTotal"
            width: parent.width
            topPadding: Theme.spaceXs
            visible: root.home.hasFindings
            text: root.home.hasSelection ? Strings.selected(root.home.selectedText) : Strings.nothingSelected
            wrapMode: Text.WordWrap
            color: root.home.hasSelection ? Theme.accent : Theme.secondary
            font.pixelSize: root.narrow ? Theme.bodySize : Theme.headlineSize
            font.weight: Font.DemiBold
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        LeadText {
            width: parent.width
            topPadding: Theme.spaceXs
            bottomPadding: Theme.spaceL
            text: Strings.reviewInTotal(root.home.totalText)
            font.pixelSize: root.narrow ? Theme.bodySize : Theme.headlineSize
        }

        Flow {
            width: parent.width
            spacing: Theme.spaceS

            AppButton {
                id: review

                objectName: "reviewAndClean"
                primary: !root.isOutdated
                enabled: root.home.hasSelection
                text: Strings.reviewAndClean
                onClicked: root.home.review()
            }

            AppButton {
                id: again

                objectName: "scanAgain"
                primary: root.isOutdated
                symbol: "arrow.clockwise"
                text: Strings.scanAgain
                onClicked: AppModel.results.startScan()
            }

            AppButton {
                objectName: "selectSafe"
                visible: root.home.hasSafe && !root.home.safeSelected
                quiet: true
                text: Strings.selectSafe
                onClicked: AppModel.results.selectSafe()
            }
        }
    }

    StorageLegend {
        id: legend

        anchors.left: root.narrow ? parent.left : words.left
        anchors.bottom: root.narrow ? parent.bottom : words.bottom
        storage: root.storage
        room: root.narrow ? root.width : words.width
        onChosen: category => root.categoryChosen(category)
    }
}
