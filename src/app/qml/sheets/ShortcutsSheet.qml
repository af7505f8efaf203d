import QtQuick
import Orlen.App

/// The keys of the program.
Sheet {
    id: root

    title: Strings.shortcutsTitle
    wantedWidth: 480
}
