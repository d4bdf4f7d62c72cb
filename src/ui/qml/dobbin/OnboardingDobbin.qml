import QtQuick
import Quillon

Column {
    OnboardingHeading {
        title: qsTr("Meet Dobbin")
        lead: qsTr("Dobbin is your filing assistant. Describe a rule in a sentence, or ask him where a file went. Quillon tidies without him, too.")
    }

    OnDeviceRow {
        width: parent.width
        card: App.onboarding.onDevice
    }

    Label {
        width: parent.width
        topPadding: Theme.s3
        text: qsTr("He can use Claude instead: see Settings → Dobbin → Advanced.")
        style: Theme.caption
        color: Theme.text2
        wrapMode: Text.Wrap
    }
}
