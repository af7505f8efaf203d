import QtQuick
import Orlen.App

/// The forecast in words, and free space as a line into the future.
ColumnCard {
    id: root

    required property PredictionModel prediction

    readonly property color tone: root.prediction.warn ? Theme.reviewBase : Theme.accent

    spacing: Theme.spaceXs

    Item {
        width: parent.width
        height: headline.height

        Symbol {
            id: sign

            anchors.left: parent.left
            y: Math.round((headline.font.pixelSize * 1.2 - height) / 2)
            visible: root.prediction.warn
            name: "exclamationmark.triangle.fill"
            colour: Theme.reviewText
            size: 20
        }

        TitleText {
            id: headline

            anchors.left: sign.visible ? sign.right : parent.left
            anchors.leftMargin: sign.visible ? 10 : 0
            anchors.right: parent.right
            text: root.prediction.headline
            wrapMode: Text.WordWrap
            color: root.prediction.warn ? Theme.reviewText : Theme.text
        }
    }

    Paragraph {
        width: parent.width
        bottomPadding: asOf.visible ? 0 : 14 + root.spacing
        text: root.prediction.detail
    }

    SmallText {
        id: asOf

        width: parent.width
        bottomPadding: 14 + root.spacing
        visible: text !== ""
        text: root.prediction.asOf
        wrapMode: Text.WordWrap
    }

    ForecastChart {
        id: chart

        readonly property string span: Strings.freeSpaceChart(root.prediction.firstDate, root.prediction.lastDate,
                                                              root.prediction.freeText)
        readonly property string outlook: Strings.spokenText(root.prediction.headline, root.prediction.detail)

        // Time goes from left to right.
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true
        width: parent.width
        height: root.prediction.enoughData ? 164 : 96
        model: root.prediction
        tone: root.tone
        rule: Theme.tertiary
        faint: Theme.dark ? Theme.stroke : Theme.inset
        ink: Theme.tertiary
        font.family: since.font.family
        font.pixelSize: since.font.pixelSize
        objectName: "forecastChart"
        activeFocusOnTab: root.prediction.enoughData
        Keys.onLeftPressed: chart.step(-1)
        Keys.onRightPressed: chart.step(1)
        onActiveFocusChanged: {
            if (!chart.activeFocus)
                chart.removeMark();
        }
        Accessible.role: Accessible.Chart
        Accessible.name: root.prediction.enoughData
                         ? Strings.spokenText(chart.span, chart.outlook)
                         : Strings.spokenText(Strings.noForecast, root.prediction.detail)
        Accessible.description: chart.markText

        FocusRing {
            shown: chart.activeFocus
        }

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.NoButton
            hoverEnabled: true
            onMouseXChanged: chart.markAt(mouseX)
            onExited: chart.removeMark()
        }

        Rectangle {
            x: Math.max(0, Math.min(chart.mark.x + 8, chart.width - width))
            y: 0
            width: marked.implicitWidth + 2 * Theme.spaceS
            height: marked.implicitHeight + Theme.spaceS
            visible: chart.markText !== ""
            radius: Theme.controlRadius
            color: Theme.raised
            border.width: 1
            border.color: Theme.stroke

            CaptionText {
                id: marked

                objectName: "forecastMark"
                anchors.centerIn: parent
                text: chart.markText
                color: Theme.text
                Accessible.ignored: true
            }
        }

        SmallText {
            x: Math.min(chart.now.x + 12, chart.width - width)
            y: Math.max(0, chart.now.y - height - 8)
            visible: root.prediction.enoughData && chart.markText === ""
            text: root.prediction.freeSentence
            color: Theme.text
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        // On the line it names, on the side where the curve does not come.
        CaptionText {
            x: chart.end.y > chart.height - 2 * height ? 0 : parent.width - width
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.spaceS
            text: Strings.diskFull
            Accessible.ignored: true
        }
    }

    Item {
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true
        width: parent.width
        height: since.height

        CaptionText {
            id: since

            visible: root.prediction.enoughData
            text: root.prediction.firstDate
            Accessible.ignored: true
        }

        CaptionText {
            id: end

            x: Math.min(chart.end.x - width / 2, parent.width - width)
            visible: root.prediction.enoughData
            text: root.prediction.endDate
            color: root.prediction.reachesFull ? root.prediction.warn ? Theme.reviewText : Theme.accent
                                               : Theme.tertiary
            Accessible.ignored: true
        }

        CaptionText {
            x: Math.min(chart.now.x - width / 2, end.x - width - Theme.spaceS)
            visible: root.prediction.enoughData && x > since.width
            text: root.prediction.lastDate
            Accessible.ignored: true
        }
    }
}
