import QtQuick
import Quillon

Column {
    OnboardingHeading {
        showsStep: false
        style: Theme.hero
        title: qsTr("Welcome to Quillon")
        lead: qsTr("Quillon keeps your folders tidy with rules written in plain English.")
    }

    Column {
        width: parent.width
        topPadding: Theme.s2
        spacing: Theme.s5

        OnboardingPoint {
            iconName: "view-list-icons"
            title: qsTr("Rules that read like sentences")
            text: qsTr("If extension is “pdf” → Move to Receipts.")
        }

        OnboardingPoint {
            iconName: "view-visible"
            title: qsTr("Look before anything moves")
            text: qsTr("Preview any folder, and tick every file before a Clean Up.")
        }

        OnboardingPoint {
            iconName: "edit-undo"
            title: qsTr("Undo for every move")
            text: qsTr("Each change is kept in the activity list with its way back.")
        }
    }
}
