import QtQuick
import Orlen.App

/// A row of a plan: the heading of a section, or one of its entries. The focus is with what it shows, which has a
/// name for screen readers.
FocusScope {
    id: root

    required property int index
    required property bool heading
    required property string name
    required property string folder
    required property string size
    required property string date
    required property string note
    required property ratingValue rating
    required property string symbol
    required property color tone
    required property string thumbnail
    // Not `state`, which every item already has.
    required property int mark
    required property bool folded
    property bool isCurrent: false
    property bool ringed: false
    signal toggled
    signal folding
    signal pressed
    signal previewRequested
    signal revealRequested
    signal menuRequested(x: real, y: real)

    Loader {
        anchors.fill: parent
        active: root.heading
        focus: root.heading
        sourceComponent: PlanHeading {
            focus: true
            title: root.name
            count: root.folder
            size: root.size
            symbol: root.symbol
            tone: root.tone
            checkState: root.mark
            folded: root.folded
            isCurrent: root.isCurrent
            ringed: root.ringed
            onToggled: root.toggled()
            onFolding: root.folding()
            onPressed: root.pressed()
        }
    }

    implicitHeight: entry.implicitHeight

    Loader {
        id: entry

        anchors.fill: parent
        active: !root.heading
        focus: !root.heading
        sourceComponent: EntryRow {
            focus: true
            name: root.name
            folder: root.folder
            size: root.size
            date: root.date
            note: root.note
            rating: root.rating
            symbol: root.symbol
            thumbnail: root.thumbnail
            checkState: root.mark
            indent: 24
            isCurrent: root.isCurrent
            ringed: root.ringed
            onToggled: root.toggled()
            onPressed: root.pressed()
            onPreviewRequested: root.previewRequested()
            onRevealRequested: root.revealRequested()
            onMenuRequested: (x, y) => root.menuRequested(x, y)
        }
    }
}
