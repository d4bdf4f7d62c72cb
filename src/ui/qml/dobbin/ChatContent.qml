import QtQuick
import Quillon

FocusScope {
    id: content

    property int endInset: 0
    property bool floating: false
    property int radius: 0

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Dobbin")

    function focusField() {
        field.forceActiveFocus(Qt.ShortcutFocusReason);
    }

    Rectangle {
        anchors.fill: parent
        radius: content.radius
        color: "transparent"

        Shadow {
            elevation: content.floating ? 3 : 0
        }
    }

    RoundedSide {
        anchors.fill: parent
        roundStart: false
        radius: content.radius
        color: Theme.sidebar
    }

    Divider {
        anchors.left: parent.left
        width: 1
        height: parent.height
        vertical: true
    }

    Item {
        id: header
        width: parent.width
        height: Math.max(60, names.height + 2 * Theme.s3)

        DragArea {
            width: parent.width
            height: 60
        }

        Glyph {
            anchors.horizontalCenter: parent.left
            anchors.horizontalCenterOffset: 33
            anchors.verticalCenter: parent.verticalCenter
            name: "horseshoe"
            size: 18
            color: Theme.dobbin
        }

        Column {
            id: names
            anchors.left: parent.left
            anchors.leftMargin: 59
            anchors.right: parent.right
            anchors.rightMargin: content.endInset + Theme.s4
            anchors.verticalCenter: parent.verticalCenter

            Label {
                width: parent.width
                text: qsTr("Dobbin")
                style: Theme.bodyStrong
            }

            Label {
                width: parent.width
                text: App.chat.place
                style: Theme.caption
                color: Theme.text2
            }
        }

        Divider {
            anchors.bottom: parent.bottom
            width: parent.width
        }
    }

    Banner {
        id: notice
        anchors.top: header.bottom
        anchors.topMargin: visible ? Theme.s3 : 0
        anchors.left: parent.left
        anchors.leftMargin: Theme.s4
        anchors.right: parent.right
        anchors.rightMargin: Theme.s4
        height: visible ? implicitHeight : 0
        visible: text !== ""
        glyph: "alert"
        text: App.chat.notice
    }

    ChatTurns {
        id: turns
        anchors.top: notice.bottom
        anchors.bottom: examples.top
        anchors.bottomMargin: Theme.s3
        anchors.left: parent.left
        anchors.leftMargin: 1
        anchors.right: parent.right
        visible: !App.chat.isEmpty
        isDragged: bar.pressed
    }

    ScrollBar {
        id: bar
        flickable: turns
    }

    Column {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.s6
        anchors.verticalCenter: turns.verticalCenter
        visible: App.chat.isEmpty
        spacing: Theme.s4

        Glyph {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "horseshoe"
            size: 40
            color: Theme.dobbin
        }

        Label {
            width: parent.width
            text: qsTr("Ask me where a file went, or what to tidy.")
            style: Theme.lead
            color: Theme.text2
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
    }

    Flow {
        id: examples
        anchors.left: parent.left
        anchors.leftMargin: Theme.s4 + 1
        anchors.right: parent.right
        anchors.rightMargin: Theme.s4
        anchors.bottom: field.top
        anchors.bottomMargin: App.chat.examples.length > 0 ? Theme.s3 : 0
        spacing: 7

        Repeater {
            model: App.chat.examples

            ChatExample {
                required property string modelData
                text: modelData
                onClicked: {
                    App.chat.ask(text);
                    content.focusField();
                }
            }
        }
    }

    ChatField {
        id: field
        focus: true
        onSent: turns.showNewest()
        anchors.left: parent.left
        anchors.leftMargin: Theme.s4 + 1
        anchors.right: parent.right
        anchors.rightMargin: Theme.s4
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.s4
    }

    Announcement {
        id: announcement

        Connections {
            target: App.chat
            function onAnswered(spoken) {
                announcement.say(spoken);
            }
        }
    }
}
