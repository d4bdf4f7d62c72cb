import QtQuick
import Quillon

/// The top of a page of the introduction.
Column {
    id: heading

    property string title
    property string lead
    property var style: Theme.display
    property bool showsStep: true

    width: parent ? parent.width : 0

    Label {
        visible: heading.showsStep
        width: parent.width
        text: qsTr("Step %1 of %2").arg(App.onboarding.step + 1).arg(App.onboarding.steps)
        style: Theme.microStrong
        color: Theme.text2
        bottomPadding: 6
    }

    Label {
        width: parent.width
        text: heading.title
        style: heading.style
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
    }

    Label {
        anchors.left: parent.left
        width: Math.min(parent.width, Theme.scaled(440))
        topPadding: Theme.s2 + 2
        bottomPadding: Theme.s6
        text: heading.lead
        style: Theme.lead
        color: Theme.text2
        wrapMode: Text.Wrap
    }
}
