import QtQuick
import Orlen.App

/// Above the findings: the storage, what can be freed, and what to do about it.
Item {
    id: root

    required property HomeModel home
    required property StorageModel storage

    /// Where the storage ring belongs.
    readonly property alias ringSlot: slot
    readonly property bool narrow: root.width < 640 * Theme.textScale

    implicitHeight: Math.max(slot.height, words.height)

    Item {
        id: slot

        width: root.narrow ? 112 : 164
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
        anchors.verticalCenter: parent.verticalCenter
        spacing: 0

        Text {
            objectName: "heroSentence"
            width: parent.width
            text: root.home.hasSafe ? Strings.safelyFree.arg(root.home.safeText) : Strings.nothingSafe
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            color: Theme.text
            font.pixelSize: root.narrow ? Theme.titleSize : Theme.heroSize
            font.weight: Font.Bold
            font.letterSpacing: root.narrow ? -0.3 : -1
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        Text {
            width: parent.width
            topPadding: 4
            text: Strings.reviewInTotal.arg(root.home.totalText)
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            color: Theme.secondary
            font.pixelSize: root.narrow ? Theme.bodySize : Theme.headlineSize
        }

        Item {
            width: 1
            height: 16
        }

        Flow {
            width: parent.width
            spacing: 10

            AppButton {
                objectName: "reviewAndClean"
                primary: true
                enabled: root.home.hasSelection
                text: Strings.reviewAndClean
                onClicked: root.home.review()
            }

            AppButton {
                objectName: "scanAgain"
                symbol: "arrow.clockwise"
                text: Strings.scanAgain
                onClicked: AppModel.startScan()
            }

            Text {
                height: Theme.controlHeight
                leftPadding: 4
                verticalAlignment: Text.AlignVCenter
                visible: root.home.hasFindings
                text: root.home.hasSelection ? Strings.selected.arg(root.home.selectedText) : Strings.nothingSelected
                textFormat: Text.PlainText
                color: Theme.tertiary
                font.pixelSize: Theme.captionSize
            }
        }

        Item {
            width: 1
            height: 16
        }

        StorageLegend {
            storage: root.storage
            room: parent.width
        }
    }
}
