import QtQuick
import Orlen.App

/// Similar photos set by set, the kept one of each first. Arrows move within a set and to the next one.
ListView {
    id: root

    required property PhotoGroupsModel groups
    required property PhotoSetsModel sets
    required property string findingId
    required property string title

    signal previewRequested(grid: PhotoGrid, row: int)
    /// Compares a set, by its number, beginning with one of its photos.
    signal compareRequested(row: int, photo: string)

    spacing: Theme.spaceL
    topMargin: Theme.spaceXs
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 400
    clip: true
    model: root.sets
    Accessible.role: Accessible.List
    Accessible.name: root.title

    delegate: FocusScope {
        id: row

        required property int index
        required property string set
        required property string heading
        required property string reason
        required property int photos

        readonly property PhotoGrid grid: shots

        width: root.width
        height: shots.y + shots.height

        PhotoTilesModel {
            id: tiles

            groups: root.groups
            findingId: root.findingId
            set: row.set
        }

        Item {
            id: head

            x: 4
            width: parent.width - 2 * x
            height: Math.max(compare.height, words.height)

            SmallText {
                id: words

                anchors.left: parent.left
                anchors.right: compare.left
                anchors.rightMargin: Theme.spaceM
                anchors.verticalCenter: parent.verticalCenter
                text: Words.facts([row.heading, row.reason])
                wrapMode: Text.WordWrap
                color: Theme.text
                font.weight: Font.DemiBold
            }

            AppButton {
                id: compare

                objectName: "compareSet"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                visible: row.photos > 1
                text: Strings.compare
                Accessible.name: Strings.spoken([Strings.compare, row.heading])
                onClicked: root.compareRequested(row.index, "")
            }
        }

        PhotoGrid {
            id: shots

            objectName: "photoSet"
            anchors.top: head.bottom
            anchors.topMargin: Theme.spaceXs
            width: parent.width
            height: contentHeight
            interactive: false
            keyNavigationEnabled: true
            focus: true
            tiles: tiles
            tileSize: 150
            ground: Theme.window
            comparable: row.photos > 1
            Accessible.name: row.heading
            onActiveFocusChanged: {
                if (shots.activeFocus)
                    root.currentIndex = row.index;
            }
            onAllRequested: root.groups.toggleAll(root.findingId)
            onPreviewRequested: number => root.previewRequested(shots, number)
            onCompareRequested: number => root.compareRequested(row.index, tiles.pathAt(number))
        }
    }

    /// The photos of the current set; null while there is none.
    function currentGrid(): PhotoGrid {
        return root.currentItem?.grid ?? null;
    }
}
