import QtQuick
import Orlen.App

/// On top of the results: the way back, how old they are, and the choice for the next scan.
Item {
    id: root

    required property HomeModel home

    readonly property bool isTall: back.width + age.implicitWidth + threshold.width + 2 * Theme.spaceL > root.width

    implicitHeight: root.isTall ? words.y + words.height + threshold.height + Theme.spaceS
                                : Math.max(back.height, words.height)

    IconButton {
        id: back

        objectName: "backToStart"
        anchors.left: parent.left
        framed: true
        symbol: "chevron.left"
        text: Strings.backToStart
        onClicked: AppModel.results.resetToIdle()
    }

    Column {
        id: words

        anchors.left: back.right
        anchors.leftMargin: Theme.spaceM
        anchors.right: root.isTall ? parent.right : threshold.left
        anchors.rightMargin: root.isTall ? 0 : Theme.spaceM
        y: Math.max(0, Math.round((back.height - height) / 2))

        SmallText {
            id: age

            objectName: "resultsAge"
            width: parent.width
            text: root.home.ageText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        SmallText {
            objectName: "resultsOutdated"
            width: parent.width
            visible: text !== ""
            text: root.home.outdatedText
            wrapMode: Text.WordWrap
            color: Theme.reviewText
            font.weight: Font.DemiBold
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    ThresholdField {
        id: threshold

        anchors.right: parent.right
        y: root.isTall ? root.height - height : Math.round((back.height - height) / 2)
        home: root.home
    }
}
