import QtQuick
import Orlen.App

/// Previews a file without another program. Space and Escape close it, arrows move to the next file, page keys
/// scroll, + and - zoom a picture, which 0 fits and 1 shows in its own pixels, and Enter ticks the file.
Sheet {
    id: root

    /// Asks for the previous (-1) or next (1) file of the list that opened it.
    signal stepRequested(by: int)
    /// Whether the file can be ticked in the list that opened it, and whether it is.
    property bool tickable: false
    property bool ticked: false
    signal toggleRequested

    /// Shows the file with this path number. `size` is shown for folders, and counts everything inside.
    function show(path: string, size: string) {
        model.path = path;
        root.size = size;
        root.open();
    }

    function tick(): bool {
        if (root.tickable)
            root.toggleRequested();
        return root.tickable;
    }

    property string size: ""

    title: model.name
    wantedWidth: 900
    wantedHeight: 760
    onOpened: content.forceActiveFocus(Qt.PopupFocusReason)
    onClosed: model.path = ""

    PreviewModel {
        id: model
    }

    FocusScope {
        id: content

        anchors.fill: parent
        focus: true

        Keys.onPressed: event => {
            event.accepted = true;
            if (event.key === Qt.Key_Space)
                root.close();
            else if (event.key === Qt.Key_Down || event.key === (Theme.mirrored ? Qt.Key_Left : Qt.Key_Right))
                root.stepRequested(1);
            else if (event.key === Qt.Key_Up || event.key === (Theme.mirrored ? Qt.Key_Right : Qt.Key_Left))
                root.stepRequested(-1);
            else if (event.key === Qt.Key_PageDown || event.key === Qt.Key_PageUp)
                area.turnPage(event.key === Qt.Key_PageDown ? 1 : -1);
            else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
                event.accepted = root.tick();
            else if (event.key === Qt.Key_Plus || event.key === Qt.Key_Equal)
                area.picture.zoom(1);
            else if (event.key === Qt.Key_Minus)
                area.picture.zoom(-1);
            else if (event.key === Qt.Key_0)
                area.picture.fit();
            else if (event.key === Qt.Key_1)
                area.picture.showPixels();
            else
                event.accepted = false;
        }

        SheetHeader {
            id: header

            width: parent.width
            title: model.name
            onCloseRequested: root.close()

            SmallText {
                width: parent.width
                text: model.folder
                elide: Text.ElideMiddle
                color: Theme.tertiary
            }
        }

        PreviewArea {
            id: area

            objectName: "previewArea"
            anchors.top: header.bottom
            anchors.bottom: footer.top
            width: parent.width
            preview: model
        }

        Item {
            id: footer

            anchors.bottom: parent.bottom
            width: parent.width
            height: Math.max(facts.height, Theme.controlHeight) + 28

            CheckMark {
                id: check

                objectName: "previewTick"
                anchors.verticalCenter: parent.verticalCenter
                anchors.left: parent.left
                anchors.leftMargin: Theme.spaceXl - padding
                visible: root.tickable
                focusPolicy: Qt.TabFocus
                checkState: root.ticked ? Qt.Checked : Qt.Unchecked
                nextCheckState: () => check.checkState
                Accessible.name: Strings.trashNamed(model.name)
                onClicked: root.toggleRequested()

                ToolTipBubble {
                    shown: check.hovered
                    text: check.Accessible.name
                }
            }

            Column {
                id: facts

                anchors.verticalCenter: parent.verticalCenter
                anchors.left: check.visible ? check.right : parent.left
                anchors.leftMargin: check.visible ? Theme.spaceS : Theme.spaceXl
                anchors.right: buttons.left
                anchors.rightMargin: Theme.spaceL
                spacing: 2

                SmallText {
                    width: parent.width
                    text: Words.facts([model.facts, model.kind === PreviewModel.Folder ? root.size : ""])
                    wrapMode: Text.WordWrap
                    color: Theme.text
                    font.weight: Font.DemiBold
                }

                CaptionText {
                    objectName: "previewStreams"
                    width: parent.width
                    visible: text !== ""
                    text: model.streams
                    wrapMode: Text.WordWrap
                }

                CaptionText {
                    width: parent.width
                    text: model.dates
                    wrapMode: Text.WordWrap
                }
            }

            Row {
                id: buttons

                anchors.right: parent.right
                anchors.rightMargin: Theme.spaceXl
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.spaceS

                AppButton {
                    symbol: "reveal"
                    text: Strings.reveal
                    onClicked: model.reveal()
                }

                AppButton {
                    text: Strings.openWith
                    onClicked: model.openWith()
                }
            }
        }
    }
}
