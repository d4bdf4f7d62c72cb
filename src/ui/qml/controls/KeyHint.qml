import QtQuick

/// The keys of something that is named beside it.
Rectangle {
    property alias text: words.text

    implicitWidth: words.implicitWidth + 10
    implicitHeight: Theme.scaled(16)
    radius: 4
    color: Theme.hover

    Label {
        id: words
        anchors.centerIn: parent
        style: Theme.micro
        color: Theme.text2
    }
}
