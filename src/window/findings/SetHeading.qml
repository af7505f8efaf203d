import QtQuick
import Orlen.App

/// Above the rows of a set: the file that it keeps.
Item {
    id: root

    /// Its path.
    required property string section

    width: ListView.view ? ListView.view.width : 0
    height: Theme.grown(34)
    Accessible.role: Accessible.Heading
    Accessible.name: words.text

    Symbol {
        id: sign

        anchors.left: parent.left
        anchors.leftMargin: 24
        anchors.verticalCenter: words.verticalCenter
        name: "checkmark.shield.fill"
        colour: Theme.safeText
        size: 14
    }

    SmallText {
        id: words

        objectName: "keptFile"
        anchors.left: sign.right
        anchors.leftMargin: Theme.spaceS
        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceXl
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spaceXs
        text: Strings.keptFile(root.section)
        elide: Text.ElideMiddle
        color: Theme.text
        font.weight: Font.DemiBold
        Accessible.ignored: true
    }
}
