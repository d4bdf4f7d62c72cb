import QtQuick
import QtQuick.Layouts
import Quillon

/// A one-off tidy of a folder: what it would take, how far it has come, and what came of it.
Sheet {
    id: sheet

    readonly property string step: App.cleanup.state
    readonly property bool isReview: step === "looking" || step === "failed" || step === "review"
    readonly property bool isBusy: step === "tidying" || step === "undoing"

    title: isReview ? qsTr("Clean Up %1").arg(App.cleanup.folderName) : ""
    caption: isReview ? qsTr("A one-off tidy. Nothing happens until you press Tidy.") : ""
    sheetWidth: isReview ? 920 : 560
    sheetHeight: isReview ? 640 : 540
    bodyMargin: 0
    primary: tidyButton.visible ? tidyButton : doneButton.visible ? doneButton : null
    Accessible.name: isReview ? title : isBusy ? App.cleanup.progressText : App.cleanup.resultTitle
    tile: isReview ? folderTile : null
    onCloseRequested: App.sheets.close()
    onStepChanged: {
        if (step === "result")
            doneButton.forceActiveFocus(Qt.PopupFocusReason);
        else if (isBusy)
            stopButton.forceActiveFocus(Qt.PopupFocusReason);
    }

    Component {
        id: folderTile

        FolderTile {
            tint: App.cleanup.tint
            symbol: App.cleanup.symbol
        }
    }

    Shortcut {
        sequences: [StandardKey.Find]
        enabled: sheet.isReview
        onActivated: view.item.focusFilter()
    }

    Loader {
        id: view
        anchors.fill: parent
        // Without a title its place is of use, too.
        anchors.topMargin: sheet.isReview ? -5 : -(Theme.s6 + Theme.s8 + Theme.s4)
        focus: true
        sourceComponent: sheet.isReview ? reviewView : sheet.isBusy ? progressView : sheet.step === "result" ? outcomeView : null
    }

    Component {
        id: reviewView

        CleanupReview {
            focus: true
        }
    }

    Component {
        id: progressView

        CleanupProgress {}
    }

    Component {
        id: outcomeView

        CleanupOutcome {}
    }

    note: [
        Button {
            visible: App.cleanup.canUndo
            iconName: "edit-undo"
            text: qsTr("Undo")
            onClicked: App.cleanup.undo()
        },
        Label {
            visible: text !== "" && !App.cleanup.hasNothing
            text: App.cleanup.tickedText
            style: Theme.bodyMedium
        },
        Label {
            Layout.fillWidth: true
            text: App.cleanup.noteText
            color: Theme.text2
            wrapMode: Text.Wrap
        }
    ]

    footer: [
        Button {
            visible: sheet.isReview && !App.cleanup.hasNothing
            text: qsTr("Cancel")
            onClicked: sheet.closeRequested()
        },
        Button {
            id: stopButton
            visible: sheet.isBusy
            enabled: !App.cleanup.isStopping
            text: qsTr("Stop")
            onClicked: App.cleanup.stop()
        },
        Button {
            id: tidyButton
            kind: "primary"
            Layout.minimumWidth: 74
            visible: sheet.isReview && !App.cleanup.hasNothing
            enabled: App.cleanup.canTidy
            text: qsTr("Tidy")
            onClicked: App.cleanup.tidy()
        },
        Button {
            id: doneButton
            kind: "primary"
            Layout.minimumWidth: 74
            visible: sheet.step === "result" || App.cleanup.hasNothing
            text: qsTr("Done")
            onClicked: sheet.closeRequested()
        }
    ]
}
