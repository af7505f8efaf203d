import QtQuick
import Orlen.App

/// The photos of a set side by side. 1 to 4 keep one, X keeps all, Space flips between two, + and - zoom, arrows
/// go to the previous and next set, and up and down to the photo that is flipped.
Sheet {
    id: root

    property bool flipping: false
    /// Of the two that are flipped, whether the partner of the current one is shown.
    property bool flipped: false
    property string problem: ""

    readonly property int shownRow: root.flipping && root.flipped ? model.partner : model.current

    function show(sets: PhotoSetsModel, row: int, photo: string) {
        root.reset();
        model.show(sets, row, photo);
        root.open();
    }

    title: model.title
    wantedWidth: 4000
    wantedHeight: 4000
    onOpened: content.forceActiveFocus(Qt.PopupFocusReason)
    onClosed: model.close()

    CompareModel {
        id: model

        onChanged: {
            if (!model.shown)
                root.close();
        }
        onRefused: root.problem = Strings.photosChanged
    }

    LinkedZoom {
        id: view

        most: Math.max(8, 4 * (panes.itemAt(root.shownRow)?.actualZoom ?? 1))
    }

    FocusScope {
        id: content

        objectName: "compareContent"
        anchors.fill: parent
        focus: true
        Accessible.role: Accessible.Grouping
        Accessible.name: Strings.spoken([model.title, panes.itemAt(root.shownRow)?.name ?? ""])

        Keys.onPressed: event => {
            event.accepted = true;
            if (event.key >= Qt.Key_1 && event.key <= Qt.Key_4)
                root.keep(event.key - Qt.Key_1);
            else if (event.key === Qt.Key_X)
                model.keepAll();
            else if (event.key === Qt.Key_Space)
                root.flip();
            else if (event.key === Qt.Key_F)
                root.flipping = !root.flipping;
            else if (event.key === Qt.Key_Plus || event.key === Qt.Key_Equal)
                view.zoomMiddleBy(1.5);
            else if (event.key === Qt.Key_Minus)
                view.zoomMiddleBy(1 / 1.5);
            else if (event.key === Qt.Key_0)
                view.fit();
            else if (event.key === (Theme.mirrored ? Qt.Key_Left : Qt.Key_Right))
                root.step(1);
            else if (event.key === (Theme.mirrored ? Qt.Key_Right : Qt.Key_Left))
                root.step(-1);
            else if (event.key === Qt.Key_Down)
                model.current = Math.min(model.count - 1, model.current + 1);
            else if (event.key === Qt.Key_Up)
                model.current = Math.max(0, model.current - 1);
            else if (event.key === Qt.Key_PageDown)
                model.showMore();
            else
                event.accepted = false;
        }

        SheetHeader {
            id: header

            width: parent.width
            title: model.title
            onCloseRequested: root.close()

            SmallText {
                width: parent.width
                text: root.problem === "" ? model.heading : root.problem
                color: root.problem === "" ? Theme.tertiary : Theme.reviewText
                elide: Text.ElideRight
            }
        }

        Item {
            id: field

            anchors.top: header.bottom
            anchors.bottom: bar.top
            anchors.bottomMargin: Theme.spaceM
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: Theme.spaceL
            anchors.rightMargin: Theme.spaceL

            FocusRing {
                shown: InputMode.keyed && content.Window.activeFocusItem === content
            }

            Repeater {
                id: panes

                readonly property int shownCount: root.flipping ? 1 : Math.max(1, model.count)
                readonly property real step: (field.width + Theme.spaceM) / panes.shownCount

                model: model

                ComparePhoto {
                    id: one

                    required property int index

                    readonly property int place: root.flipping ? 0
                            : Theme.mirrored ? panes.shownCount - 1 - one.index : one.index

                    objectName: "comparePhoto" + (one.index + 1)
                    x: Math.round(one.place * panes.step)
                    width: Math.round((one.place + 1) * panes.step) - Theme.spaceM - x
                    height: field.height
                    visible: !root.flipping || one.index === root.shownRow
                    zoom: view
                    number: one.index + 1
                    current: !root.flipping && model.current === one.index
                    onPressed: {
                        content.forceActiveFocus();
                        if (!root.flipping)
                            model.current = one.index;
                    }
                    onKeepRequested: root.keep(one.index)
                    onToggled: model.toggle(one.index)
                }
            }
        }

        CompareBar {
            id: bar

            anchors.bottom: parent.bottom
            width: parent.width
            compared: model
            zoom: view
            flipping: root.flipping
            actualZoom: panes.itemAt(root.shownRow)?.actualZoom ?? 1
            onFlipRequested: {
                root.flipping = !root.flipping;
                content.forceActiveFocus();
            }
            onStepRequested: by => root.step(by)
        }
    }

    function reset() {
        root.flipping = false;
        root.flipped = false;
        root.problem = "";
        view.fit();
    }

    function flip() {
        if (root.flipping)
            root.flipped = !root.flipped;
        root.flipping = true;
    }

    function keep(row: int) {
        root.problem = "";
        model.keep(row);
    }

    function step(by: int) {
        if (by < 0 ? !model.hasPrevious : !model.hasNext)
            return;
        root.reset();
        model.step(by);
    }
}
