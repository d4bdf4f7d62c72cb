import QtQuick
import Quillon

Column {
    OnboardingHeading {
        title: qsTr("Let it run by itself")
        lead: qsTr("Quillon tidies while it’s open, from the tray. Both of these can be changed in Settings.")
    }

    Card {
        width: parent.width
        height: rows.height

        Column {
            id: rows
            width: parent.width

            SettingsSwitch {
                isFirst: true
                title: qsTr("Notify me after tidying")
                caption: qsTr("One message per folder, such as “Filed 3 files.”")
                on: App.onboarding.notifies
                onSwitched: on => App.onboarding.notifies = on
            }

            SettingsSwitch {
                title: qsTr("Launch Quillon at login")
                caption: qsTr("So folders are tidied without you opening anything.")
                on: App.onboarding.launchAtLogin
                onSwitched: on => App.onboarding.launchAtLogin = on
            }
        }
    }

    FieldError {
        width: parent.width
        text: App.onboarding.error
    }
}
