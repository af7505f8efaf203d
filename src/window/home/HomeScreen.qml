import QtQuick
import Orlen.App

/// Smart Scan: before, during and after a scan. A single storage ring moves from phase to phase.
FocusScope {
    id: root

    required property MainView view

    readonly property alias home: theHome

    state: root.home.phase === HomeModel.Scanning ? "scanning"
           : root.home.phase === HomeModel.Results ? "results" : "idle"

    HomeModel {
        id: theHome
    }

    DiskAccessModel {
        id: theAccess
    }

    CategoryModel {
        id: theCategory

        onFolderChosen: code => root.view.navigation.showFolder(code)
    }

    CategorySheet {
        category: theCategory
    }

    HomeIdle {
        id: idle

        anchors.fill: parent
        enabled: root.state === "idle"
        visible: opacity > 0
        opacity: 0
        home: root.home
        storage: root.view.storage
        onCategoryChosen: chosen => theCategory.show(chosen)
    }

    HomeScanning {
        id: scanning

        sandboxed: theAccess.command !== ""
        anchors.fill: parent
        enabled: root.state === "scanning"
        visible: opacity > 0
        opacity: 0
    }

    HomeResults {
        id: results

        anchors.fill: parent
        enabled: root.state === "results"
        visible: opacity > 0
        opacity: 0
        home: root.home
        storage: root.view.storage
        onFindingChosen: id => root.view.navigation.showFinding(id)
        onCategoryChosen: chosen => theCategory.show(chosen)
    }

    StorageGauge {
        id: ring

        storage: root.view.storage
        breathing: root.state === "scanning" || !root.view.storage.ready
        selectable: root.state !== "scanning"
        onChosen: chosen => theCategory.show(chosen)
    }

    // Qt 6.4's linter does not know that ParentChange accepts bindings.
    // qmllint disable
    component Phase: State {
        id: phase

        required property Item screen
        required property Item slot

        PropertyChanges {
            target: phase.screen
            opacity: 1
        }
        ParentChange {
            target: ring
            parent: phase.slot
            x: 0
            y: 0
            width: phase.slot.width
            height: phase.slot.height
        }
    }

    states: [
        Phase {
            name: "idle"
            screen: idle
            slot: idle.ringSlot
        },
        Phase {
            name: "scanning"
            screen: scanning
            slot: scanning.ringSlot
        },
        Phase {
            name: "results"
            screen: results
            slot: results.ringSlot
        }
    ]
    // qmllint enable

    transitions: [
        PhaseTransition {
            to: "scanning"
            over: root
            arriving: scanning
            response: 0.7
            damping: 0.82
        },
        PhaseTransition {
            to: "idle"
            over: root
            arriving: idle
            response: 0.6
            damping: 0.85
        },
        PhaseTransition {
            to: "results"
            over: root
            arriving: results
            response: 0.8
            damping: 0.84
        }
    ]

    // The pressed button is gone, so the new phase's main button takes the focus.
    onStateChanged: {
        const button = [idle.mainButton, scanning.mainButton, results.mainButton][root.home.phase];
        button.focus = true;
    }
}
