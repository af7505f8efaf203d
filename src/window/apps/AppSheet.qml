import QtQuick
import Orlen.App

/// One application: a checklist of its leftovers, and the button to review them.
Sheet {
    id: root

    required property AppDetailModel detail

    title: root.detail.name
    wantedWidth: Theme.widened(760)
    wantedHeight: root.detail.removable
                  ? Math.max(440, Math.min(640, header.height + strip.height + list.contentHeight + footer.height + 28))
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

        Rectangle {
            id: strip

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: header.bottom
            visible: root.detail.removable
            height: Theme.grown(44)
            color: Theme.inset

            CheckMark {
                id: all

                objectName: "leftoversAll"
                x: 20
                anchors.verticalCenter: parent.verticalCenter
                visible: root.detail.count > 0
                checkState: root.detail.checkState
                nextCheckState: () => root.detail.checkState === Qt.Checked ? Qt.Unchecked : Qt.Checked
                text: heading.text
                Accessible.name: heading.text
                onClicked: root.detail.toggleAll()
            }

            SmallText {
                id: heading

                anchors.left: all.visible ? all.right : parent.left
                anchors.leftMargin: all.visible ? 10 : 24
                anchors.right: figures.left
                anchors.rightMargin: Theme.spaceL
                anchors.verticalCenter: parent.verticalCenter
                text: root.detail.heading
                elide: Text.ElideMiddle
                color: Theme.text
                font.weight: Font.DemiBold
            }

            CaptionText {
                id: figures

                anchors.right: parent.right
                anchors.rightMargin: Theme.spaceXl
                anchors.verticalCenter: parent.verticalCenter
                visible: root.detail.count > 0
                text: root.detail.chosenText
                color: Theme.secondary
            }
        }

        KeyedList {
            id: list

            pointed: true
            objectName: "leftoverList"
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: strip.bottom
            anchors.bottom: footer.top
            anchors.leftMargin: Theme.spaceM
            anchors.rightMargin: 2
            topMargin: Theme.spaceS
            bottomMargin: Theme.spaceS
            visible: root.detail.removable
            reuseItems: true
            model: root.detail
            Accessible.name: heading.text

            onActiveFocusChanged: {
                if (!list.activeFocus)
                    list.pointed = false;
            }
            Keys.onSpacePressed: root.detail.toggle(list.currentIndex)
            Keys.onReturnPressed: root.detail.review()
            Keys.onEnterPressed: root.detail.review()

            delegate: LeftoverRow {
                id: row

                required property int index

                width: ListView.view.width - 10
                ringed: ListView.isCurrentItem && list.showsFocus
                onToggled: {
                    list.pointed = true;
                    list.currentIndex = row.index;
                    root.detail.toggle(row.index);
                }
            }
        }

        Column {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.verticalCenter: list.verticalCenter
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
