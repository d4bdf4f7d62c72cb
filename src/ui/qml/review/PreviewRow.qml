import QtQuick
import QtQuick.Templates as T
import Quillon

/// A file, the rule that takes it, and what happens to it.
T.ItemDelegate {
    id: row

    required property int index
    required property string fileName
    required property string kind
    required property string ruleNumber
    required property string ruleName
    required property string firstAction
    required property string firstIcon
    required property string moreActions
    required property string moreIcon
    required property string spoken
    property int fileColumn
    property int ruleColumn
    property int actionColumn
    property bool isLast: false

    focusPolicy: Qt.StrongFocus
    activeFocusOnTab: ListView.isCurrentItem
    Accessible.role: Accessible.ListItem
    Accessible.name: fileName
    Accessible.description: spoken

    // It waits for another file: till then nobody is told of it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    background: Item {
        Divider {
            visible: !row.isLast
            width: parent.width
            anchors.bottom: parent.bottom
        }

        FocusRing {
            anchors.margins: Theme.focusGap
            targetRadius: Theme.rControl
            target: row
        }
    }

    contentItem: Item {
        FileTile {
            id: tile
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            fileName: row.fileName
            kind: row.kind
        }

        Label {
            anchors.left: parent.left
            anchors.leftMargin: row.fileColumn
            anchors.verticalCenter: parent.verticalCenter
            width: (row.ruleName === "" ? parent.width - 14 : row.ruleColumn - Theme.s3) - row.fileColumn
            text: row.fileName
            style: Theme.bodyMedium
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }

        Badge {
            id: number
            anchors.left: parent.left
            anchors.leftMargin: row.ruleColumn
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: row.ruleNumber
            Accessible.ignored: true
        }

        Label {
            anchors.left: number.right
            anchors.leftMargin: Theme.s2
            anchors.right: actions.left
            anchors.rightMargin: Theme.s3
            anchors.verticalCenter: parent.verticalCenter
            text: row.ruleName
            color: Theme.text2
            Accessible.ignored: true
        }

        Column {
            id: actions
            anchors.left: parent.left
            anchors.leftMargin: row.actionColumn
            anchors.right: parent.right
            anchors.rightMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            spacing: 1

            PreviewAction {
                width: parent.width
                visible: row.firstAction !== ""
                iconName: row.firstIcon
                text: row.firstAction
            }

            PreviewAction {
                width: parent.width
                visible: row.moreActions !== ""
                iconName: row.moreIcon
                text: row.moreActions
            }
        }
    }
}
