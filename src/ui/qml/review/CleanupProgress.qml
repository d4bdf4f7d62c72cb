import QtQuick
import Quillon

/// How far a clean-up, or the taking back of one, has come.
Item {
    Column {
        anchors.centerIn: parent
        width: Math.min(360, parent.width - 2 * Theme.s6)
        spacing: Theme.s3

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: App.cleanup.progressText
            style: Theme.bodyMedium
        }

        ProgressBar {
            width: parent.width
            value: App.cleanup.progress
            label: App.cleanup.state === "undoing" ? qsTr("Putting files of %1 back").arg(App.cleanup.folderName) : qsTr("Tidying %1").arg(App.cleanup.folderName)
        }
    }
}
