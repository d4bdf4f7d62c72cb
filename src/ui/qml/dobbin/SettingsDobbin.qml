import QtQuick
import Quillon

Column {
    id: page

    spacing: Theme.s4 + 2

    OnDeviceRow {
        width: parent.width
        card: App.settings.onDevice
    }

    SettingsGroup {
        title: qsTr("What Dobbin may do")

        SettingsSwitch {
            isFirst: true
            title: qsTr("Read inside files")
            caption: qsTr("Lets “Dobbin says it” and “Rename with Dobbin” look at the text in PDFs, documents and pictures.")
            on: App.settings.claude.readContents
            onSwitched: on => App.settings.claude.readContents = on
        }

        SettingsSwitch {
            title: qsTr("Suggest rules")
            caption: qsTr("Now and then, Dobbin spots something worth a rule.")
            on: App.settings.claude.suggestRules
            onSwitched: on => App.settings.claude.suggestRules = on
        }
    }

    SettingsGroup {
        title: qsTr("Advanced")

        SettingsSwitch {
            isFirst: true
            title: qsTr("Use Claude")
            caption: qsTr("Ask Anthropic’s Claude instead. Questions, file names and any text Dobbin may read are sent to Anthropic.")
            on: App.settings.claude.useClaude
            onSwitched: on => App.settings.claude.useClaude = on
        }

        SettingsKey {}

        SettingsRow {
            title: qsTr("Model")
            caption: qsTr("Sorting and renaming files use the cheaper Haiku.")

            PillPicker {
                anchors.verticalCenter: parent.verticalCenter
                label: qsTr("Claude model")
                leastWidth: Theme.scaled(178)
                model: App.settings.claude.models
                currentIndex: App.settings.claude.model
                onActivated: index => App.settings.claude.model = index
            }
        }

        SettingsRow {
            title: qsTr("Requests this month")
            implicitHeight: 54

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: App.settings.claude.requests
                style: Theme.bodyMedium
            }
        }
    }

    SettingsNote {
        text: App.settings.claude.note
        isGood: App.settings.claude.isNoteGood
    }
}
