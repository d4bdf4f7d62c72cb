import QtQuick
import Quillon

/// The introduction, in place of all else in the main window.
FocusScope {
    id: page

    /// Of the window’s corners.
    property real radius: 0
    readonly property var model: App.onboarding
    readonly property int pictureWidth: Math.min(400, Math.round(width * 0.4))

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Introduction")

    Rectangle {
        anchors.fill: parent
        radius: page.radius
        color: Theme.bg
    }

    OnboardingPicture {
        anchors.left: parent.left
        width: page.pictureWidth
        height: parent.height
        radius: page.radius
    }

    DragArea {
        width: parent.width
        height: 60
    }

    Flickable {
        id: flick
        anchors.left: parent.left
        anchors.leftMargin: page.pictureWidth + 64
        anchors.right: parent.right
        anchors.rightMargin: 64
        anchors.top: parent.top
        anchors.topMargin: 56
        anchors.bottom: footer.top
        anchors.bottomMargin: Theme.s3
        contentWidth: width
        contentHeight: Math.max(height, body.height)
        clip: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds

        Loader {
            id: body
            width: flick.width
            y: Math.max(0, Math.round((flick.height - height) / 2))
            sourceComponent: [welcome, folders, quiet, dobbin][page.model.step]
            onLoaded: {
                flick.contentY = 0;
                // What had the focus went with the last step.
                if (!other.activeFocus)
                    next.forceActiveFocus(Qt.OtherFocusReason);
            }
        }
    }

    RevealFocus {
        view: flick
    }

    ScrollBar {
        flickable: flick
        anchors.rightMargin: -Theme.s4
    }

    Item {
        id: footer
        anchors.left: parent.left
        anchors.leftMargin: page.pictureWidth + 64
        anchors.right: parent.right
        anchors.rightMargin: Theme.s8
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 28
        height: Theme.controlLarge

        Row {
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            spacing: 6
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("Step %1 of %2").arg(page.model.step + 1).arg(page.model.steps)

            Repeater {
                model: page.model.steps

                Rectangle {
                    required property int index
                    readonly property bool isCurrent: index === page.model.step
                    width: isCurrent ? 20 : 6
                    height: 6
                    radius: 3
                    color: isCurrent ? Theme.accent : Theme.lineStrong
                }
            }
        }

        Button {
            id: other
            anchors.right: next.left
            anchors.rightMargin: Theme.s2 + 2
            anchors.verticalCenter: parent.verticalCenter
            large: true
            kind: "quiet"
            text: page.model.step === 0 ? qsTr("Skip") : qsTr("Back")
            onClicked: page.model.step === 0 ? page.model.skip() : page.model.back()
        }

        Button {
            id: next
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            large: true
            kind: "primary"
            leftPadding: 23
            focus: true
            text: page.model.nextText
            onClicked: page.model.next()
        }
    }

    Shortcut {
        sequences: ["Ctrl+Return", "Ctrl+Enter"]
        enabled: page.visible
        onActivated: page.model.next()
    }

    Component {
        id: welcome
        OnboardingWelcome {}
    }

    Component {
        id: folders
        OnboardingFolders {}
    }

    Component {
        id: quiet
        OnboardingQuiet {}
    }

    Component {
        id: dobbin
        OnboardingDobbin {}
    }
}
