import QtQuick
import Quillon

/// The heading above the rules; in a folder without any, what to do about that.
Item {
    id: header

    property int startMargin: Theme.s6
    property int endMargin: Theme.s6
    property bool isCompact: false

    height: App.page.hasRules ? row.height + 10 : noRules.height

    function takeFocus() {
        (App.page.hasRules ? newRule : noRules.newRule).forceActiveFocus(Qt.TabFocusReason);
        return true;
    }

    Item {
        id: row
        visible: App.page.hasRules
        anchors.left: parent.left
        anchors.leftMargin: header.startMargin
        anchors.right: parent.right
        anchors.rightMargin: header.endMargin
        height: Theme.control

        Label {
            id: title
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Rules")
            style: Theme.heading
            Accessible.role: Accessible.Heading
        }

        Label {
            visible: !header.isCompact
            anchors.left: title.right
            anchors.leftMargin: 10
            anchors.right: buttons.left
            anchors.rightMargin: Theme.s2
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Run top to bottom. The first match wins.")
            style: Theme.caption
            color: Theme.text3
        }

        Row {
            id: buttons
            anchors.right: parent.right
            spacing: 10

            Button {
                iconName: "view-list-icons"
                text: qsTr("Presets")
                shortcutText: "Ctrl+Shift+P"
                toolTip: qsTr("Ready-made rules")
                onClicked: App.presets.open(App.page.folderID)
            }

            Button {
                id: newRule
                kind: "primary"
                iconName: "list-add"
                text: qsTr("New Rule")
                shortcutText: "Ctrl+N"
                toolTip: qsTr("Write a rule")
                onClicked: App.editor.create(App.page.folderID)
            }
        }
    }

    NoRules {
        id: noRules
        visible: !App.page.hasRules
        anchors.left: parent.left
        anchors.leftMargin: header.startMargin
        anchors.right: parent.right
        anchors.rightMargin: header.endMargin
    }
}
