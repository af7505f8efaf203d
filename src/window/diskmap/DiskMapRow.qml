import QtQuick
import Orlen.App

/// One item of the disk map as a list row.
ListRow {
    id: root

    required property string name
    required property string size
    required property int kind
    required property real share
    required property string shareText
    required property string spoken
    required property bool unread
    required property bool locked
    required property int index
    property bool isCurrent: false
    signal pressed

    /// Whether there is no room for the bar beside the name.
    readonly property bool isNarrow: root.width < 420 * Theme.textScale

    implicitHeight: Theme.grown(44)
    sideGap: 4
    ringed: root.isCurrent
    Accessible.name: root.unread ? root.spoken : Strings.spoken([root.spoken, root.shareText])
    Accessible.selected: root.isCurrent
    Accessible.onPressAction: root.pressed()

    Symbol {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: Theme.cardMargin
        anchors.verticalCenter: parent.verticalCenter
        name: root.locked ? "lock.fill" : root.kind === DiskMapView.Folder ? "folder.fill" : root.kind === DiskMapView.File ? "doc" : "ellipsis"
        colour: root.kind === DiskMapView.Folder ? Theme.accent : Theme.tertiary
    }

    BodyText {
        anchors.left: icon.right
        anchors.leftMargin: Theme.spaceM
        anchors.right: root.isNarrow ? percent.left : bar.left
        anchors.rightMargin: Theme.spaceL
        anchors.verticalCenter: parent.verticalCenter
        text: root.name
        elide: Text.ElideMiddle
        Accessible.ignored: true
    }

    ProgressBar {
        id: bar

        anchors.right: percent.left
        anchors.rightMargin: Theme.spaceM
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(220, root.width * 0.26)
        visible: !root.isNarrow
        value: root.share
        Accessible.ignored: true
    }

    CaptionText {
        id: percent

        anchors.right: amount.left
        anchors.rightMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.grown(46)
        horizontalAlignment: Text.AlignRight
        text: root.unread ? "" : root.shareText
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 8
        Accessible.ignored: true
    }

    SmallText {
        id: amount

        anchors.right: chevron.left
        anchors.rightMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.grown(82)
        horizontalAlignment: Text.AlignRight
        text: root.unread ? "–" : root.size
        color: Theme.text
        Accessible.ignored: true
    }

    Symbol {
        id: chevron

        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceL
        anchors.verticalCenter: parent.verticalCenter
        opacity: root.kind === DiskMapView.Folder ? 1 : 0
        name: "chevron.right"
        colour: Theme.tertiary
        size: 12
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: root.kind === DiskMapView.Folder ? Qt.PointingHandCursor : Qt.ArrowCursor
        onClicked: root.pressed()
    }
}
