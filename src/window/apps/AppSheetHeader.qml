import QtQuick
import Orlen.App

/// Facts about an application, and what to do before it is removed.
Column {
    id: root

    required property AppDetailModel detail
    signal closeRequested

    bottomPadding: root.detail.quitFirst !== "" ? 16 : 0
    spacing: Theme.spaceS

    SheetHeader {
        width: root.width
        title: root.detail.name
        titleLines: 2
        picture: AppIcon {
            icon: root.detail.icon
            size: 56
        }
        onCloseRequested: root.closeRequested()

        SmallText {
            width: parent.width
            text: Words.facts([root.detail.size, root.detail.origin])
            elide: Text.ElideMiddle
        }

        CaptionText {
            width: parent.width
            text: root.detail.usage
            wrapMode: Text.Wrap
        }

        CaptionText {
            width: parent.width
            visible: text !== ""
            text: root.detail.identifier
            elide: Text.ElideMiddle
        }
    }

    Note {
        x: 24
        width: root.width - 48
        symbol: "exclamationmark.triangle.fill"
        ink: Theme.reviewText
        visible: root.detail.quitFirst !== ""
        text: root.detail.quitFirst
    }
}
