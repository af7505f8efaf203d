import QtQuick
import Orlen.App

/// Folders left behind by applications that are gone: a checklist, and the button to review what is checked.
Sheet {
    id: root

    required property LeftBehindModel leftovers

    title: Strings.leftBehind
    wantedWidth: Theme.widened(760)
    wantedHeight: Math.max(440, Math.min(640, header.height + list.contentHeight + footer.height))
    onClosed: root.leftovers.close()
    onOpened: list.forceActiveFocus(Qt.PopupFocusReason)

    Connections {
        target: root.leftovers
        function onOpenChanged() {
            if (root.leftovers.open)
                root.open();
            else
                root.close();
        }
    }

    contentItem: FocusScope {
        SheetHeader {
            id: header

            width: parent.width
            title: root.title
            titleLines: 2
            symbol: "archivebox.fill"
            tone: Theme.appsTone
            onCloseRequested: root.close()

            SmallText {
                width: parent.width
                text: Strings.leftBehindLead
                wrapMode: Text.WordWrap
            }
        }

        LeftoverChecklist {
            id: list

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: header.bottom
            anchors.bottom: footer.top
            leftovers: root.leftovers
        }

        SheetFooter {
            id: footer

            anchors.bottom: parent.bottom
            width: parent.width
            note: Strings.trashPromise
            figure: root.leftovers.total
            action: Strings.reviewAndClean
            actionName: "reviewLeftBehind"
            ready: root.leftovers.ready
            onTriggered: root.leftovers.review()
        }
    }
}
