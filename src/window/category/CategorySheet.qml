import QtQuick
import Orlen.App

/// One storage category: the folders that fill it, and advice on what Orlen does not touch.
Sheet {
    id: root

    required property CategoryModel category

    title: root.category.title
    wantedWidth: Theme.widened(760)
    wantedHeight: Math.max(360, header.height + page.height + 2 * Theme.spaceL + 1)
    onClosed: root.category.close()
    onOpened: area.forceActiveFocus(Qt.PopupFocusReason)

    Connections {
        target: root.category
        function onOpenChanged() {
            if (root.category.open)
                root.open();
            else
                root.close();
        }
    }

    contentItem: FocusScope {
        SheetHeader {
            id: header

            width: parent.width
            title: root.category.title
            symbol: root.category.symbol
            tone: root.category.colour
            onCloseRequested: root.close()

            SmallText {
                objectName: "categorySummary"
                width: parent.width
                text: root.category.summary
                color: Theme.secondary
            }
        }

        Divider {
            y: header.height
            width: parent.width
        }

        ScrollArea {
            id: area

            objectName: "categoryContent"
            anchors.fill: parent
            anchors.topMargin: header.height + 1
            anchors.bottomMargin: Theme.sheetRadius / 2
            contentHeight: page.height + 2 * Theme.spaceL
            focus: true
            // It has the keyboard whether or not there is enough to scroll, which changes while it is open.
            activeFocusOnTab: true
            title: root.category.title

            Column {
                id: page

                x: Theme.spaceXl
                y: Theme.spaceL
                width: area.width - 2 * x
                spacing: Theme.spaceL

                Paragraph {
                    width: parent.width
                    text: root.category.explanation
                    color: Theme.secondary
                }

                CategoryFolders {
                    width: parent.width
                    category: root.category
                    onReached: row => area.show(row, Theme.spaceL)
                }

                CategoryAdvice {
                    width: parent.width
                    category: root.category
                    onReached: item => area.show(item, Theme.spaceL)
                }
            }
        }
    }
}
