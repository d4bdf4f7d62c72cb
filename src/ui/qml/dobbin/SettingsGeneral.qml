import QtQuick
import Quillon

Column {
    spacing: Theme.s4 + 2

    SettingsGroup {
        title: qsTr("Quillon")

        SettingsSwitch {
            isFirst: true
            title: qsTr("Show Quillon in the Dock")
            caption: qsTr("When off, Quillon lives in the tray and its window opens from there.")
            on: App.settings.showDockIcon
            onSwitched: on => App.settings.showDockIcon = on
        }

        SettingsSwitch {
            title: qsTr("Launch Quillon at login")
            caption: qsTr("So folders are tidied without you opening anything.")
            on: App.settings.launchAtLogin
            onSwitched: on => App.settings.launchAtLogin = on
        }

        SettingsSwitch {
            title: qsTr("Notify me after tidying")
            caption: qsTr("One message per folder, such as “Filed 3 files.”")
            on: App.settings.notifies
            onSwitched: on => App.settings.notifies = on
        }

        SettingsSwitch {
            title: qsTr("Pause everything")
            caption: qsTr("Nothing runs by itself until you resume. You can still run a folder yourself.")
            on: App.settings.isPaused
            onSwitched: on => App.settings.isPaused = on
        }
    }

    SettingsGroup {
        title: qsTr("Support")

        SettingsRow {
            isFirst: true
            title: qsTr("Diagnostics")
            caption: qsTr("A plain-text report of folders, rules and recent errors. Read it before you send it.")

            Button {
                text: qsTr("Export Diagnostics…")
                busy: App.settings.isExporting
                onClicked: App.settings.exportDiagnostics()
            }
        }

        SettingsRow {
            title: qsTr("Help")
            caption: qsTr("Write to support, or see the website.")

            Button {
                text: qsTr("Website")
                onClicked: App.settings.openWebsite()
            }

            Button {
                text: qsTr("Email Support")
                onClicked: App.settings.writeToSupport()
            }
        }

        SettingsRow {
            title: qsTr("Introduction")
            caption: qsTr("See the first-run pages again.")

            Button {
                text: qsTr("Show")
                Accessible.name: qsTr("Show the introduction")
                onClicked: App.settings.showIntroduction()
            }
        }
    }

    SettingsNote {
        text: App.settings.error !== "" ? App.settings.error : App.settings.exported
        isGood: App.settings.error === ""

        Button {
            visible: App.settings.exported !== ""
            kind: "link"
            text: qsTr("Reveal")
            Accessible.name: qsTr("Reveal the report")
            onClicked: App.settings.revealExported()
        }
    }
}
