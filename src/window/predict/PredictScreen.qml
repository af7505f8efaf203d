import QtQuick
import Orlen.App

/// Predict: when the disk will be full, and what makes it so.
ScreenPage {
    id: root

    title: Strings.predictTitle
    subtitle: Strings.predictLead

    PredictionModel {
        id: thePrediction
    }

    ForecastCard {
        width: parent.width
        prediction: thePrediction
    }

    Text {
        width: parent.width
        topPadding: 8
        text: Strings.growthByCategory
        textFormat: Text.PlainText
        color: Theme.text
        font.pixelSize: Theme.headlineSize
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
        Accessible.name: Strings.growthByCategory
    }

    Card {
        width: parent.width
        height: thePrediction.count === 0 ? later.height + 40 : rows.height + 12

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

        Text {
            id: later

            x: 20
            y: 20
            width: parent.width - 40
            visible: thePrediction.count === 0
            text: Strings.growthLater
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            color: Theme.secondary
            font.pixelSize: Theme.smallSize
        }
    }

    Note {
        width: parent.width
        text: Strings.snapshotsStored.arg(thePrediction.snapshotsText)
    }
}
