import QtQuick
import Quillon

/// A change that Dobbin offers.
Rectangle {
    id: row

    property var change
    property int reach: Qt.StrongFocus

    signal wanted

    implicitHeight: Math.max(44, words.height + 2 * Theme.s2)
    radius: Theme.rBanner
    color: Theme.dobbinSoft
    border.width: 1
    border.color: Theme.dobbinLine
    Accessible.role: Accessible.Grouping
    Accessible.name: change.label
    Accessible.description: change.detail

    Column {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: 13
        anchors.right: side.left
        anchors.rightMargin: Theme.s3
        anchors.verticalCenter: parent.verticalCenter

        Label {
            width: parent.width
            text: row.change.label
            style: Theme.bodyMedium
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        Label {
            width: parent.width
            visible: text !== ""
            text: row.change.detail
            style: Theme.caption
            color: Theme.text2
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }

    Item {
        id: side
        anchors.right: parent.right
        anchors.rightMargin: 9
        anchors.verticalCenter: parent.verticalCenter
        width: row.change.isDone ? done.implicitWidth : button.implicitWidth
        height: Theme.controlSmall

        Button {
            id: button
            visible: !row.change.isDone
            anchors.fill: parent
            kind: "dobbin"
            small: true
            text: qsTr("Do it")
            focusPolicy: row.reach
            Accessible.description: row.change.label
            onClicked: row.wanted()
        }

        Badge {
            id: done
            visible: row.change.isDone
            anchors.verticalCenter: parent.verticalCenter
            kind: "ok"
            glyph: "tick"
            text: qsTr("Done")
        }
    }
}
