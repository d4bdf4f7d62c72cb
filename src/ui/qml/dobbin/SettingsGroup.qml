import QtQuick
import Quillon

/// Settings that belong together.
Column {
    id: group

    property string title
    default property alias rows: rows.data

    width: parent ? parent.width : 0
    spacing: 6

    Label {
        width: parent.width
        leftPadding: Theme.s1
        rightPadding: Theme.s1
        text: group.title
        style: Theme.captionStrong
        color: Theme.text2
        Accessible.role: Accessible.Heading
    }

    Card {
        width: parent.width
        height: rows.height

        Column {
            id: rows
            width: parent.width
        }
    }
}
