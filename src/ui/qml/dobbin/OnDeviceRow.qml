import QtQuick
import Quillon

/// How things are with the model on this computer, and what to do about it.
Rectangle {
    id: row

    required property var card

    implicitHeight: Math.max(70, words.height + 28)
    radius: Theme.rCard
    color: Theme.dobbinSoft
    border.width: 1
    border.color: Theme.dobbinLine

    Rectangle {
        id: disc
        anchors.left: parent.left
        anchors.leftMargin: 17
        anchors.verticalCenter: parent.verticalCenter
        width: 40
        height: 40
        radius: 20
        color: Theme.card

        Glyph {
            anchors.centerIn: parent
            name: "horseshoe"
            size: 20
            color: Theme.dobbin
        }
    }

    Column {
        id: words
        anchors.left: disc.right
        anchors.leftMargin: 14
        anchors.right: buttons.left
        anchors.rightMargin: Theme.s3
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Row {
            width: parent.width
            spacing: Theme.s2

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("On-device model")
                style: Theme.bodyStrong
            }

            Badge {
                anchors.verticalCenter: parent.verticalCenter
                visible: text !== ""
                kind: row.card.badgeKind
                text: row.card.badge
            }
        }

        Label {
            width: parent.width
            text: row.card.text
            style: Theme.caption
            color: Theme.text2
            wrapMode: Text.Wrap
        }

        Item {
            width: parent.width
            height: 10
            visible: row.card.step === "stop"

            ProgressBar {
                anchors.bottom: parent.bottom
                width: parent.width
                label: qsTr("Downloading the model")
                value: row.card.progress
            }
        }
    }

    Row {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: 17
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.s2

        Button {
            visible: row.card.step === "check"
            small: true
            text: qsTr("Check Again")
            busy: row.card.isChecking
            onClicked: row.card.check()
        }

        Button {
            visible: row.card.step === "download"
            small: true
            text: qsTr("Download…")
            onClicked: row.card.askForDownload()
        }

        Button {
            visible: row.card.step === "confirm"
            small: true
            kind: "quiet"
            text: qsTr("Cancel")
            onClicked: row.card.dropDownload()
        }

        Button {
            visible: row.card.step === "confirm"
            small: true
            kind: "dobbin"
            text: qsTr("Download")
            onClicked: row.card.download()
        }

        Button {
            visible: row.card.step === "stop"
            small: true
            text: qsTr("Stop")
            Accessible.name: qsTr("Stop downloading")
            onClicked: row.card.stop()
        }
    }
}
