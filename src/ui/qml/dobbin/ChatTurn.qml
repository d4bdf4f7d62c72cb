import QtQuick
import QtQuick.Templates as T
import Quillon

/// What one of the two has said.
T.ItemDelegate {
    id: turn

    required property int index
    required property string key
    required property bool isUser
    required property bool isError
    required property string said
    required property string spoken
    required property var entries
    required property var changes
    readonly property bool isCurrent: ListView.isCurrentItem
    readonly property int reach: isCurrent ? Qt.StrongFocus : Qt.ClickFocus

    implicitHeight: (isUser ? bubble.height : answer.height) + Theme.s4
    focusPolicy: reach
    Accessible.role: Accessible.ListItem
    Accessible.name: spoken
    Accessible.focusable: true
    onActiveFocusChanged: if (activeFocus) ListView.view.currentIndex = index

    Rectangle {
        id: bubble
        visible: turn.isUser
        anchors.right: parent.right
        anchors.rightMargin: Theme.s4
        width: words.width + 2 * Theme.s3
        height: words.height + 2 * Theme.s2
        radius: 14
        color: Theme.accentSoft
        border.width: Theme.isHighContrast ? 1 : 0
        border.color: Theme.line

        Rectangle {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            visible: !Theme.isHighContrast
            width: 14
            height: 14
            radius: 4
            color: parent.color
        }

        Label {
            id: words
            x: Theme.s3
            y: Theme.s2
            width: Math.min(implicitWidth, Theme.scaled(240) - 2 * Theme.s3)
            text: turn.isUser ? turn.said : ""
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }

    Column {
        id: answer
        visible: !turn.isUser
        anchors.left: parent.left
        anchors.leftMargin: 50
        anchors.right: parent.right
        anchors.rightMargin: Theme.s4
        spacing: Theme.s3

        Label {
            width: parent.width
            text: turn.isUser ? "" : turn.said
            color: turn.isError ? Theme.error : Theme.text1
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        Flow {
            visible: turn.isError
            width: parent.width
            spacing: Theme.s2

            Button {
                text: qsTr("Try Again")
                iconName: "view-refresh"
                small: true
                focusPolicy: turn.reach
                onClicked: App.chat.askAgain(turn.key)
            }

            Button {
                text: qsTr("Dobbin Settings…")
                kind: "quiet"
                small: true
                focusPolicy: turn.reach
                onClicked: App.settings.open("dobbin")
            }
        }

        Repeater {
            model: turn.entries

            ChatEntry {
                required property var modelData
                width: answer.width
                entry: modelData
                reach: turn.reach
            }
        }

        Repeater {
            model: turn.changes

            ChatChange {
                required property int index
                required property var modelData
                width: answer.width
                change: modelData
                reach: turn.reach
                onWanted: App.chat.carryOut(turn.key, index)
            }
        }
    }

    Glyph {
        visible: !turn.isUser
        anchors.left: parent.left
        anchors.leftMargin: 21
        y: 2
        name: "horseshoe"
        size: 14
        color: Theme.dobbin
    }

    FocusRing {
        target: turn
        anchors.margins: Theme.focusGap
        anchors.bottomMargin: Theme.s2
        targetRadius: Theme.rControl
    }
}
