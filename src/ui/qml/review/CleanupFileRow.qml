import QtQuick
import QtQuick.Templates as T
import Quillon

/// A file of the clean-up, or the head of a recipe's files, with its tick. The whole row ticks.
T.CheckDelegate {
    id: row

    required property int index
    required property bool isHead
    required property int recipe
    required property string title
    required property string kind
    required property string secondLine
    required property string sizeText
    required property int tick

    signal ticked(bool on)
    signal revealAsked

    implicitHeight: isHead ? Theme.scaled(36) : Theme.rowFile
    focusPolicy: Qt.StrongFocus
    activeFocusOnTab: ListView.isCurrentItem
    hoverEnabled: true
    checkState: tick
    nextCheckState: () => checkState
    // It waits for another file: till then nobody is told of it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true
    onClicked: ticked(tick !== Qt.Checked)
    Keys.onPressed: event => {
        event.accepted = !isHead && Keystroke.isEnter(event);
        if (event.accepted)
            revealAsked();
    }

    Accessible.role: Accessible.CheckBox
    Accessible.name: title
    Accessible.description: isHead ? secondLine + ", " + sizeText : sizeText + ", " + secondLine
    Accessible.checkable: true
    Accessible.checked: tick === Qt.Checked
    Accessible.onPressAction: ticked(tick !== Qt.Checked)
    Accessible.onToggleAction: ticked(tick !== Qt.Checked)

    background: Rectangle {
        color: row.isHead ? Theme.sunken : row.hovered ? Theme.hover : "transparent"

        Divider {
            width: parent.width
            anchors.bottom: parent.bottom
        }

        FocusRing {
            target: row
            targetRadius: Theme.rControl
            anchors.margins: Theme.focusGap
        }
    }

    indicator: TickMark {
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        checkState: row.tick
    }

    contentItem: Item {
        FileTile {
            id: tile
            anchors.left: parent.left
            anchors.leftMargin: 40
            anchors.verticalCenter: parent.verticalCenter
            visible: !row.isHead
            size: 28
            fileName: row.title
            kind: row.kind
        }

        Label {
            id: head
            anchors.left: parent.left
            anchors.leftMargin: 40
            anchors.verticalCenter: parent.verticalCenter
            visible: row.isHead
            text: row.isHead ? row.title : ""
            style: Theme.bodyStrong
            Accessible.ignored: true
        }

        Label {
            anchors.left: head.right
            anchors.leftMargin: Theme.s3
            anchors.right: size.left
            anchors.rightMargin: Theme.s3
            anchors.verticalCenter: parent.verticalCenter
            visible: row.isHead
            text: row.isHead ? row.secondLine : ""
            style: Theme.caption
            color: Theme.text2
            Accessible.ignored: true
        }

        Column {
            anchors.left: tile.right
            anchors.leftMargin: Theme.s3
            anchors.right: size.left
            anchors.rightMargin: Theme.s3
            anchors.verticalCenter: parent.verticalCenter
            visible: !row.isHead

            Label {
                width: parent.width
                text: row.isHead ? "" : row.title
                style: Theme.bodyMedium
                color: row.tick === Qt.Unchecked ? Theme.text2 : Theme.text1
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }

            Label {
                width: parent.width
                text: row.isHead ? "" : row.secondLine
                style: Theme.caption
                color: Theme.text2
                Accessible.ignored: true
            }
        }

        Label {
            id: size
            anchors.right: parent.right
            anchors.rightMargin: row.isHead ? 14 : 52
            anchors.verticalCenter: parent.verticalCenter
            text: row.sizeText
            style: Theme.caption
            color: row.isHead ? Theme.text3 : Theme.text2
            elide: Text.ElideNone
            Accessible.ignored: true
        }

        IconButton {
            anchors.right: parent.right
            anchors.rightMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            visible: !row.isHead
            activeFocusOnTab: row.ListView.isCurrentItem
            kind: "quiet"
            iconName: "document-open-folder"
            iconColor: Theme.text1
            label: qsTr("Reveal %1").arg(row.title)
            onClicked: row.revealAsked()
        }
    }
}
