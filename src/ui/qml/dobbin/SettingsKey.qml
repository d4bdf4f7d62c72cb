import QtQuick
import Quillon

/// The key for Claude: which one is saved, or a field for one.
Column {
    id: row

    readonly property var claude: App.settings.claude

    width: parent ? parent.width : 0

    Connections {
        target: App.settings.claude
        function onKeySaved() {
            key.text = "";
        }
    }

    SettingsRow {
        title: qsTr("API key")
        caption: row.claude.keyCaption
        captionColor: row.claude.isKeyringLocked ? Theme.warn : Theme.text2

        Label {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: row.claude.keyText
            color: Theme.text2
        }

        Button {
            visible: row.claude.hasKey && !row.claude.isEntering
            anchors.verticalCenter: parent.verticalCenter
            small: true
            text: qsTr("Replace…")
            Accessible.name: qsTr("Replace the API key")
            onClicked: {
                row.claude.replaceKey();
                key.forceActiveFocus(Qt.OtherFocusReason);
            }
        }

        Button {
            visible: row.claude.hasKey && !row.claude.isEntering
            anchors.verticalCenter: parent.verticalCenter
            small: true
            kind: "destructive"
            text: qsTr("Remove")
            Accessible.name: qsTr("Remove the API key")
            onClicked: row.claude.removeKey()
        }

        Button {
            visible: row.claude.isEntering
            anchors.verticalCenter: parent.verticalCenter
            kind: "link"
            text: qsTr("Get a key from Anthropic")
            onClicked: App.settings.openKeyPage()
        }

        Button {
            visible: row.claude.isKeyringLocked
            anchors.verticalCenter: parent.verticalCenter
            small: true
            text: qsTr("Try Again")
            onClicked: row.claude.open()
        }
    }

    Item {
        visible: row.claude.isEntering || row.claude.keyError !== ""
        width: parent.width
        height: Math.max(key.visible ? key.height : 0, error.visible ? error.height : 0) + Theme.s3 + 2

        FieldError {
            id: error
            visible: !key.visible && text !== ""
            x: 17
            width: parent.width - 34
            text: row.claude.keyError
        }

        Field {
            id: key
            visible: row.claude.isEntering
            anchors.left: parent.left
            anchors.leftMargin: 17
            anchors.right: buttons.left
            anchors.rightMargin: Theme.s2
            hidden: true
            enabled: !row.claude.isSaving
            label: qsTr("Claude API key")
            placeholder: qsTr("Paste your Claude API key here")
            errorText: row.claude.keyError
            onAccepted: row.claude.saveKey(text)
        }

        Row {
            id: buttons
            visible: row.claude.isEntering
            anchors.right: parent.right
            anchors.rightMargin: 17
            spacing: Theme.s2

            Button {
                visible: row.claude.hasKey
                kind: "quiet"
                text: qsTr("Cancel")
                onClicked: {
                    key.text = "";
                    row.claude.dropReplacing();
                }
            }

            Button {
                text: qsTr("Save Key")
                busy: row.claude.isSaving
                onClicked: row.claude.saveKey(key.text)
            }
        }
    }
}
