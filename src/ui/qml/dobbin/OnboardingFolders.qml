import QtQuick
import Quillon

Column {
    OnboardingHeading {
        title: qsTr("Which folders should stay tidy?")
        lead: qsTr("Quillon only ever looks in the folders you choose. Nothing moves until a folder has a rule.")
    }

    Card {
        width: parent.width
        height: rows.height

        Column {
            id: rows
            width: parent.width

            Repeater {
                model: App.onboarding.folders

                OnboardingFolder {}
            }

            Item {
                width: parent.width
                height: Theme.scaled(49)

                Button {
                    anchors.left: parent.left
                    anchors.leftMargin: Theme.s3
                    anchors.verticalCenter: parent.verticalCenter
                    kind: "link"
                    iconName: "list-add"
                    text: qsTr("Choose Another Folder…")
                    onClicked: App.onboarding.chooseFolder()
                }
            }
        }
    }
}
