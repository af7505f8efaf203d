import QtQuick
import Orlen.App

Sheet {
    id: root

    required property Navigation navigation

    title: ""
}
