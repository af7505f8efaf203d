import QtQuick
import Orlen.App

/// Predict: when the disk will be full, and what is filling it.
ScreenPage {
    id: root

    required property MainView view

    title: Screens.title(Screens.Predict)
    subtitle: Strings.predictLead

    PredictionModel {
        id: thePrediction
    }

    ForecastCard {
        width: parent.width
        prediction: thePrediction
    }

    GrowthCard {
        width: parent.width
        onFolderChosen: code => root.view.navigation.showFolder(code)
    }

    HeadlineText {
        width: parent.width
        topPadding: Theme.spaceS
        text: Strings.growthByCategory
    }

    Card {
        width: parent.width
        height: thePrediction.count === 0 ? later.height + 2 * Theme.cardMargin : rows.height + 12

        Column {
            id: rows

            y: 6
            width: parent.width
            Accessible.role: Accessible.List
            Accessible.name: Strings.growthByCategory

            Repeater {
                model: thePrediction

                GrowthRow {
                    width: parent ? parent.width : 0
                }
            }
        }

        SmallText {
            id: later

            x: Theme.cardMargin
            y: Theme.cardMargin
            width: parent.width - 2 * Theme.cardMargin
            visible: thePrediction.count === 0
            text: Strings.growthLater
            wrapMode: Text.WordWrap
        }
    }

    Note {
        width: parent.width
        text: thePrediction.snapshotsText
    }
}
