import QtQuick
import Orlen.App

/// Orlen's answer: the text, the findings it mentions, and who wrote it.
ColumnCard {
    id: root

    required property string text
    required property bool usedModel
    required property bool proposes
    required property FindingLinks links
    signal findingRequested(id: string)
    signal reviewRequested
    signal copyRequested

    spacing: Theme.spaceM
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    Paragraph {
        width: parent.width
        text: root.text
        wrapMode: Text.Wrap
        color: Theme.text
        font.pixelSize: Theme.bodySize
        Accessible.ignored: true
    }

    Column {
        width: parent.width
        visible: links.count > 0
        spacing: Theme.spaceXs

        Repeater {
            id: links

            model: root.links

            AnswerLink {
                width: parent ? parent.width : 0
                onClicked: root.findingRequested(findingId)
            }
        }
    }

    AppButton {
        objectName: "reviewProposal"
        visible: root.proposes
        width: Math.min(implicitWidth, parent.width)
        text: Strings.selectForReview
        onClicked: root.reviewRequested()
    }

    Item {
        width: parent.width
        height: Math.max(copy.height, author.height)

        CaptionText {
            id: author

            anchors.left: parent.left
            anchors.right: copy.left
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            text: root.usedModel ? Strings.modelFooter : Strings.matcherFooter
            wrapMode: Text.WordWrap
        }

        IconButton {
            id: copy

            objectName: "copyAnswer"
            anchors.right: parent.right
            anchors.rightMargin: -8
            width: 30
            height: 26
            symbol: done.running ? "checkmark" : "copy"
            symbolSize: 14
            text: done.running ? Strings.copied : Strings.copy
            onClicked: {
                root.copyRequested();
                done.restart();
            }

            Timer {
                id: done

                interval: 1600
            }
        }
    }
}
