import QtQuick
import Orlen.App

/// A field for a path, and below it what Orlen would do with that, and why.
ColumnCard {
    id: root

    required property Notices notices
    /// There is an answer, below the field.
    signal answered

    spacing: Theme.spaceM

    PathTestModel {
        id: tested

        text: field.text
        onChanged: {
            if (tested.answer === "")
                return;
            root.notices.announce(result);
            layout.restart();
        }
    }

    // Until the answer has its place.
    Timer {
        id: layout

        interval: 0
        onTriggered: root.answered()
    }

    HeadlineText {
        width: parent.width
        text: Strings.testPath
        Accessible.role: Accessible.Heading
    }

    SmallText {
        width: parent.width
        text: Strings.testPathLead
        wrapMode: Text.WordWrap
        elide: Text.ElideNone
    }

    InputField {
        id: field

        objectName: "testedPath"
        width: parent.width
        implicitHeight: Theme.controlHeight
        leftPadding: Theme.spaceM
        rightPadding: Theme.spaceM
        placeholderText: Strings.pathToTest
        Accessible.name: Strings.testPath
        Accessible.description: field.placeholderText
    }

    Column {
        id: result

        width: parent.width
        visible: tested.looking || tested.answer !== ""
        spacing: Theme.spaceXs
        Accessible.role: Accessible.StaticText
        Accessible.name: tested.looking ? Strings.measuring : Strings.spokenText(tested.heading, tested.answer)

        BodyText {
            width: parent.width
            visible: text !== ""
            text: tested.looking ? Strings.measuring : tested.heading
            font.weight: Font.DemiBold
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }

        BodyText {
            objectName: "testAnswer"
            width: parent.width
            visible: text !== ""
            text: tested.answer
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            color: Theme.secondary
            lineHeight: 1.2
            Accessible.ignored: true
        }
    }
}
