import QtQuick
import Quillon

/// A page with some lines on it.
Rectangle {
    id: paper

    property string word
    property color ink

    radius: 10
    color: Theme.onTint
    antialiasing: true
    Accessible.ignored: true

    Rectangle {
        x: paper.width * 0.13
        y: paper.height * 0.14
        width: paper.width * 0.4
        height: paper.height * 0.07
        radius: height / 2
        color: paper.ink
        antialiasing: true
    }

    Repeater {
        model: [0.74, 0.62, 0.46]

        Rectangle {
            required property int index
            required property real modelData
            x: paper.width * 0.13
            y: paper.height * (0.3 + 0.13 * index)
            width: paper.width * modelData
            height: paper.height * 0.05
            radius: height / 2
            color: Theme.tint(7)
            opacity: 0.18
            antialiasing: true
        }
    }

    Text {
        x: paper.width * 0.13
        anchors.bottom: parent.bottom
        anchors.bottomMargin: paper.height * 0.1
        text: paper.word
        color: paper.ink
        font.family: Theme.fontFamily
        font.pixelSize: paper.width * 0.15
        font.weight: Font.Bold
        Accessible.ignored: true
    }
}
