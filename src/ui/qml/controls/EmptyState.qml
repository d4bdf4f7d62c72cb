import QtQuick

/// In the middle of nothing: a drawing, a heading, a paragraph, and what to do about it.
Column {
    id: state

    property Component drawing
    property string title
    property string text
    default property alias buttons: row.data

    spacing: Theme.s2

    Loader {
        anchors.horizontalCenter: parent.horizontalCenter
        sourceComponent: state.drawing
    }

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(implicitWidth, state.width)
        topPadding: Theme.s2
        text: state.title
        style: Theme.title
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.Heading
    }

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(400, state.width)
        visible: text !== ""
        text: state.text
        style: Theme.lead
        color: Theme.text2
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
    }

    Row {
        id: row
        anchors.horizontalCenter: parent.horizontalCenter
        topPadding: Theme.s2
        spacing: Theme.s2
        visible: children.length > 0
    }
}
