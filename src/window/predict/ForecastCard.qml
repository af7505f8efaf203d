import QtQuick
import Orlen.App

/// The forecast: its sentence, and free space as a line that goes on into the future.
Card {
    id: root

    required property PredictionModel prediction

    readonly property color tone: root.prediction.warn ? Theme.reviewBase : Theme.accent

    implicitHeight: column.height + 48

    Column {
        id: column

        x: 24
        y: 22
        width: root.width - 48
        spacing: 6

        Item {
            width: parent.width
            height: headline.height

            Symbol {
                id: sign

                y: Math.round((headline.font.pixelSize * 1.2 - height) / 2)
                visible: root.prediction.warn
                name: "exclamationmark.triangle.fill"
                colour: Theme.reviewText
                size: 20
            }

            Text {
                id: headline

                objectName: "forecastHeadline"
                x: sign.visible ? sign.width + 10 : 0
                width: parent.width - x
                text: root.prediction.headline
                textFormat: Text.PlainText
                wrapMode: Text.WordWrap
                color: root.prediction.warn ? Theme.reviewText : Theme.text
                font.pixelSize: Math.round(24 * Theme.textScale)
                font.weight: Font.Bold
                font.letterSpacing: -0.4
                Accessible.role: Accessible.Heading
                Accessible.name: root.prediction.headline
            }
        }

        Text {
            width: parent.width
            text: root.prediction.detail
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            lineHeight: 1.2
            color: Theme.secondary
            font.pixelSize: Theme.smallSize
        }

        Item {
            width: 1
            height: 14
        }

        ForecastChart {
            id: chart

            objectName: "forecastChart"
            width: parent.width
            height: root.prediction.enoughData ? 164 : 96
            model: root.prediction
            tone: root.tone
            rule: Theme.tertiary
            faint: Theme.dark ? Theme.stroke : Theme.inset
            Accessible.role: Accessible.Chart
            Accessible.name: root.prediction.enoughData
                             ? Strings.freeSpaceChart.arg(root.prediction.firstDate).arg(root.prediction.lastDate)
                                   .arg(root.prediction.freeText).arg(root.prediction.headline)
                                   .arg(root.prediction.detail)
                             : Strings.noForecast.arg(root.prediction.detail)

            Text {
                x: Math.min(chart.now.x + 12, chart.width - width)
                y: Math.max(0, chart.now.y - height - 8)
                visible: root.prediction.enoughData
                text: Strings.free.arg(root.prediction.freeText)
                textFormat: Text.PlainText
                color: Theme.text
                font.pixelSize: Theme.smallSize
                font.weight: Font.DemiBold
                Accessible.ignored: true
            }

            // On the line that it names, where the curve does not come before it means it.
            Text {
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                anchors.bottomMargin: 8
                text: Strings.diskFull
                textFormat: Text.PlainText
                color: Theme.tertiary
                font.pixelSize: Theme.captionSize
                Accessible.ignored: true
            }
        }

        Item {
            width: parent.width
            height: since.height

            Text {
                id: since

                visible: root.prediction.enoughData
                text: root.prediction.firstDate
                textFormat: Text.PlainText
                color: Theme.tertiary
                font.pixelSize: Theme.captionSize
                Accessible.ignored: true
            }

            Text {
                x: Math.min(chart.now.x - width / 2, parent.width - width)
                visible: root.prediction.enoughData
                text: root.prediction.lastDate
                textFormat: Text.PlainText
                color: Theme.tertiary
                font.pixelSize: Theme.captionSize
                Accessible.ignored: true
            }
        }
    }
}
