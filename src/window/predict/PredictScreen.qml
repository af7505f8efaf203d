import QtQuick
import Orlen.App

/// Predict: when the disk will be full, and what makes it so.
ScreenPage {
    id: root

    title: Strings.predictTitle
    subtitle: Strings.predictLead

    PredictionModel {
        id: thePrediction

        app: AppModel
    }

    ForecastCard {
        width: parent.width
        prediction: thePrediction
    }

    HeadlineText {
        width: parent.width
        topPadding: 8
        text: Strings.growthByCategory
    }

    Card {
        width: parent.width
        height: thePrediction.empty ? later.height + 40 : rows.height + 12

        Column {
            id: rows

            objectName: "growthRows"
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

            x: 20
            y: 20
            width: parent.width - 40
            visible: thePrediction.empty
            text: Strings.growthLater
            wrapMode: Text.WordWrap
        }
    }

    Note {
        width: parent.width
        text: Strings.snapshotsStored.arg(thePrediction.snapshotsText)
    }
}
