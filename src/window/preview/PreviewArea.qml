import QtQuick
import Orlen.App

/// A preview's content: a picture, text, the names in a folder or an archive, or an icon with a sentence.
Rectangle {
    id: root

    required property PreviewModel preview

    readonly property alias picture: picture
    readonly property bool isListed: root.preview.kind === PreviewModel.Folder
                                     || root.preview.kind === PreviewModel.Archive
    readonly property bool isBare: root.preview.kind === PreviewModel.Other
                                   || root.preview.kind === PreviewModel.Locked
                                   || root.preview.kind === PreviewModel.Missing
                                   || root.preview.kind === PreviewModel.Damaged
                                   || root.preview.kind === PreviewModel.Media
                                   || root.isListed && names.count === 0

    color: Theme.inset
    clip: true

    PreviewPicture {
        id: picture

        anchors.fill: parent
        visible: root.preview.kind === PreviewModel.Picture || root.preview.kind === PreviewModel.Page
        preview: root.preview
    }

    ScrollArea {
        id: page

        objectName: "previewText"
        anchors.fill: parent
        visible: root.preview.kind === PreviewModel.Text
        contentHeight: text.height + (cut.visible ? cut.height : 0) + 32

        TextEdit {
            id: text

            x: 24
            y: 16
            width: page.width - 48
            text: root.preview.text
            textFormat: TextEdit.PlainText
            readOnly: true
            selectByMouse: true
            activeFocusOnPress: false
            wrapMode: TextEdit.WrapAnywhere
            color: Theme.text
            selectionColor: Theme.accentFill
            selectedTextColor: Theme.overAccent
            font.family: "monospace"
            font.pixelSize: Theme.smallSize
            Accessible.name: root.preview.name
        }

        CaptionText {
            id: cut

            anchors.top: text.bottom
            x: 24
            width: page.width - 48
            topPadding: Theme.spaceM
            visible: root.preview.cut
            text: Strings.beginningOnly
        }
    }

    ScrollList {
        id: names

        anchors.fill: parent
        objectName: "previewNames"
        visible: root.isListed
        topMargin: Theme.spaceS
        bottomMargin: Theme.spaceS
        reuseItems: true
        model: root.preview
        Accessible.name: root.preview.name

        delegate: Item {
            id: row

            required property string name
            required property string size
            required property string symbol

            width: ListView.view.width
            height: Theme.grown(32)

            Symbol {
                id: icon

                anchors.left: parent.left
                anchors.leftMargin: Theme.spaceXl
                anchors.verticalCenter: parent.verticalCenter
                name: row.symbol
            }

            SmallText {
                anchors.left: icon.right
                anchors.leftMargin: Theme.spaceS
                anchors.right: size.left
                anchors.rightMargin: Theme.spaceL
                anchors.verticalCenter: parent.verticalCenter
                text: row.name
                elide: Text.ElideMiddle
                color: Theme.text
            }

            SmallText {
                id: size

                anchors.right: parent.right
                anchors.rightMargin: Theme.spaceXl
                anchors.verticalCenter: parent.verticalCenter
                text: row.size
            }
        }

        footer: Item {
            width: names.width
            height: root.preview.cut ? remark.height : 0
            visible: root.preview.cut

            CaptionText {
                id: remark

                x: 24
                width: parent.width - 48
                topPadding: Theme.spaceS
                bottomPadding: Theme.spaceS
                text: root.preview.damaged ? Strings.damagedArchive : Strings.firstNamesOnly
            }
        }
    }

    Column {
        anchors.centerIn: parent
        width: parent.width - 64
        visible: root.isBare
        spacing: Theme.spaceL

        Image {
            id: kept

            readonly property size whole: root.preview.thumbnailSize
            readonly property real scaling: Math.min(1, parent.width / Math.max(1, kept.whole.width),
                                                     Math.max(64, root.height - 160) / Math.max(1, kept.whole.height))

            objectName: "previewThumbnail"
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.round(kept.whole.width * kept.scaling)
            height: Math.round(kept.whole.height * kept.scaling)
            visible: root.preview.thumbnail !== ""
            asynchronous: true
            cache: false
            fillMode: Image.PreserveAspectFit
            sourceSize.width: kept.whole.width
            sourceSize.height: kept.whole.height
            source: root.preview.thumbnail
            Accessible.role: Accessible.Graphic
            Accessible.name: root.preview.name
        }

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: !kept.visible
            name: root.preview.symbol
            colour: Theme.tertiary
            size: 72
            grows: false
        }

        BodyText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            text: root.preview.kind === PreviewModel.Locked ? Strings.previewLocked
                  : root.preview.kind === PreviewModel.Missing ? Strings.previewMissing
                  : root.preview.kind === PreviewModel.Damaged ? Strings.previewDamaged
                  : root.preview.kind === PreviewModel.Media ? root.preview.tags
                  : root.preview.kind === PreviewModel.Archive ? Strings.emptyArchive
                  : root.preview.kind === PreviewModel.Folder ? Strings.emptyFolder
                  : kept.visible ? "" : Strings.noPreview
            color: Theme.secondary
        }
    }

    /// Scrolls by about a page, up (-1) or down (1).
    function turnPage(by: int) {
        const handle = names.visible ? names.handle : page.handle;
        handle.stepSize = handle.size * 0.9;
        if (by > 0)
            handle.increase();
        else
            handle.decrease();
    }
}
