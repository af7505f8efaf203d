import QtQuick
import Orlen.App

/// What grew: the folders, and the choice since when.
Column {
    id: root

    signal folderChosen(code: string)

    spacing: Theme.spaceM

    GrowthModel {
        id: growth
    }

    RowMenu {
        id: menu

        onPreviewRequested: look.show(menu.path, "")
    }

    PreviewSheet {
        id: look
    }

    HeadlineText {
        width: parent.width
        topPadding: Theme.spaceS
        text: Strings.whatGrew
    }

    Flow {
        width: parent.width
        spacing: Theme.spaceS

        PeriodButton {
            objectName: "sinceLastScan"
            text: Strings.sinceLastScan
            chosen: growth.period === GrowthModel.LastScan
            onClicked: growth.period = GrowthModel.LastScan
        }

        PeriodButton {
            objectName: "sinceWeek"
            text: Strings.inAWeek
            chosen: growth.period === GrowthModel.Week
            onClicked: growth.period = GrowthModel.Week
        }

        PeriodButton {
            objectName: "sinceMonth"
            text: Strings.inAMonth
            chosen: growth.period === GrowthModel.Month
            onClicked: growth.period = GrowthModel.Month
        }
    }

    Card {
        width: parent.width
        height: list.height + 12

        Column {
            id: list

            y: 6
            width: parent.width

            SmallText {
                objectName: "growthSentence"
                x: Theme.cardMargin
                width: parent.width - 2 * Theme.cardMargin
                topPadding: Theme.spaceS
                bottomPadding: Theme.spaceS
                text: growth.sentence
                wrapMode: Text.WordWrap
            }

            Repeater {
                model: growth

                GrownFolder {
                    id: folder

                    required property int index

                    objectName: "grown-" + folder.index
                    width: parent ? parent.width : 0
                    onClicked: root.folderChosen(folder.code)
                    onMenuRequested: (x, y) => menu.openAt(growth, folder.index, folder, x, y)
                    onMenuKeyPressed: menu.openBelow(growth, folder.index, folder)
                }
            }
        }
    }
}
