import QtQuick
import Quillon

/// A day, above its entries and over them while they scroll.
Rectangle {
    id: heading

    required property string section
    readonly property var day: App.history.days[section]

    color: Theme.bg

    Label {
        id: name
        anchors.left: parent.left
        anchors.leftMargin: Theme.s6 + 1
        anchors.baseline: parent.bottom
        anchors.baselineOffset: -13
        text: heading.day ? heading.day.heading : ""
        style: Theme.bodyStrong
        // The list keeps headings of days that are filtered away.
        visible: text !== ""
        Accessible.role: Accessible.Heading
        Accessible.ignored: text === ""
    }

    Label {
        anchors.left: name.right
        anchors.leftMargin: Theme.s2
        anchors.baseline: name.baseline
        text: heading.day ? heading.day.count : ""
        style: Theme.caption
        color: Theme.text3
    }
}
