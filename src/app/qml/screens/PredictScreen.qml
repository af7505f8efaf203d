import QtQuick
import Orlen.App

/// Predict.
ScreenPage {
    id: root

    title: "PredictScreen"
    subtitle: Strings.predictLead
}
