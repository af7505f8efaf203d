import QtQuick
import Orlen.App

/// One application: a checklist of its leftovers, and the button to review them.
Sheet {
    id: root

    required property AppDetailModel detail

    title: root.detail.name
    wantedWidth: Theme.widened(760)
    wantedHeight: root.detail.removable
                  ? Math.max(440, Math.min(640, header.height + list.contentHeight + footer.height))
                  : header.height + advice.height + 32
    onClosed: root.detail.close()
    onOpened: list.forceActiveFocus(Qt.PopupFocusReason)

    Ease on wantedHeight {
        enabled: root.opened
        duration: Theme.sheetInDuration
    }

    Connections {
        target: root.detail
        function onOpenChanged() {
            if (root.detail.open)
                root.open();
            else
                root.close();
        }
    }

    contentItem: FocusScope {
        AppSheetHeader {
            id: header

            width: parent.width
            detail: root.detail
            onCloseRequested: root.close()
        }

        AppAdvice {
            id: advice

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: header.bottom
            anchors.leftMargin: Theme.spaceXl
            anchors.rightMargin: Theme.spaceXl
            visible: !root.detail.removable
            detail: root.detail
        }

        LeftoverChecklist {
            id: list

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: header.bottom
            anchors.bottom: footer.top
            visible: root.detail.removable
            leftovers: root.detail
        }

        Column {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.verticalCenter: list.verticalCenter
            anchors.verticalCenterOffset: list.stripHeight / 2
            width: parent.width - 96
            spacing: Theme.spaceS
            visible: root.detail.removable && root.detail.count === 0

            LeadText {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: root.detail.loading ? Strings.lookingForLeftovers
                                          : root.detail.otherCopy ? Strings.otherCopy : Strings.noLeftovers
                color: root.detail.otherCopy ? Theme.text : Theme.secondary
                font.weight: root.detail.otherCopy ? Font.DemiBold : Font.Normal
            }

            BodyText {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                visible: root.detail.otherCopy
                text: Strings.otherCopyNote
                color: Theme.secondary
            }
        }

        SheetFooter {
            id: footer

            anchors.bottom: parent.bottom
            width: parent.width
            shown: root.detail.removable
            note: Strings.trashPromise
            figure: root.detail.total
            figureName: "uninstallTotal"
            action: Strings.reviewAndUninstall
            actionName: "reviewUninstall"
            ready: root.detail.ready
            onTriggered: root.detail.review()
        }
    }
}
