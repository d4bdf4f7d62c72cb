import QtQuick
import Quillon

/// What the main window holds: the folders, the selected one, Dobbin, and what lies over them.
Item {
    id: content

    property int radius: 0
    readonly property bool isBusyElsewhere: App.sheets.current !== "" || onboarding.active || App.folders.question.isOpen
    readonly property bool buttonsAtStart: Desktop.hasButtonsAtStart
    readonly property bool chatIsOpen: App.chat.isOpen
    readonly property bool chatLiesOver: chatIsOpen && (width < 960 || width - sidebar.width - chat.fullWidth < 400)
    /// What the panel takes of the page at once: its rules are wrapped anew when the panel opens, and not
    /// for each frame in which it slides into its place.
    readonly property real chatRoom: chatIsOpen && !chatLiesOver ? chat.fullWidth : 0
    readonly property Item focused: Window.activeFocusItem
    readonly property bool isFocusLost: !focused || !focused.parent || focused === detail.rules || focused === sidebar.list
    /// A sheet that reaches them lies over the window's buttons, so that none is taken for one of its own.
    readonly property bool sheetHidesButtons: sheets.reaches(windowButtons)
    readonly property bool catchesFocus: isFocusLost && Window.active && !isBusyElsewhere

    /// What had the focus may go, and what it was opened from with it: then the keyboard goes on from
    /// the next rule or from the folders.
    function catchFocus() {
        if (catchesFocus && focused === detail.rules)
            detail.rules.takeFocus();
        else if (catchesFocus)
            (sidebar.list.currentItem ?? noFolders).forceActiveFocus(Qt.PopupFocusReason);
    }

    onCatchesFocusChanged: Qt.callLater(catchFocus)

    Keys.onReleased: event => {
        Keystroke.follows(event);
        event.accepted = false;
    }

    Rectangle {
        anchors.fill: parent
        radius: content.radius
        color: Theme.bg
    }

    Item {
        anchors.fill: parent
        visible: !onboarding.active

        Sidebar {
            id: sidebar
            anchors.left: parent.left
            width: Math.min(Theme.scaled(232), 300)
            height: parent.height
            radius: content.radius
            carried: hand
            startInset: content.buttonsAtStart ? windowButtons.width + Theme.s3 : 0
        }

        FolderDetail {
            id: detail
            anchors.left: sidebar.right
            anchors.right: parent.right
            anchors.rightMargin: content.chatRoom
            height: parent.height
            visible: App.page.hasFolder
            radius: content.radius
            endMargin: content.chatIsOpen && !content.chatLiesOver ? Theme.s5 : Theme.s6
            roomForButtons: content.buttonsAtStart ? 0 : Math.max(0, windowButtons.width + Theme.s4 + 34 - endMargin - content.chatRoom)
            carried: hand
        }

        Loader {
            id: noFolders
            active: !App.page.hasFolder
            focus: active
            anchors.left: sidebar.right
            anchors.right: detail.right
            height: parent.height
            sourceComponent: NoFolders {}
        }

        ChatPanel {
            id: chat
            anchors.right: parent.right
            height: parent.height
            radius: content.radius
            endInset: content.buttonsAtStart ? 0 : windowButtons.width
            floating: content.chatLiesOver
        }
    }

    Loader {
        id: onboarding
        anchors.fill: parent
        active: App.onboarding.isRunning === true
        focus: active
        source: active ? "qrc:/Quillon/dobbin/OnboardingPage.qml" : ""
    }

    Binding {
        target: onboarding.item
        property: "radius"
        value: content.radius
    }

    WindowButtons {
        id: windowButtons
        isAtStart: content.buttonsAtStart
        anchors.left: isAtStart ? parent.left : undefined
        anchors.right: isAtStart ? undefined : parent.right
        anchors.margins: Theme.s4
        y: 17
        z: content.sheetHidesButtons ? 0 : 1
    }

    Rectangle {
        anchors.fill: parent
        radius: content.radius
        color: "transparent"
        border.width: 1
        border.color: Theme.windowOutline
        z: 3
    }

    RuleInHand {
        id: hand
        z: 2
        onMoved: (x, y) => {
            sidebar.carryRule(x, y);
            detail.carryRule(x, y);
        }
        onDropped: (x, y) => {
            sidebar.dropRule(x, y);
            detail.dropRule(x, y);
        }
        onEnded: {
            sidebar.ruleGone();
            detail.ruleGone();
        }
    }

    Item {
        anchors.left: parent.left
        anchors.leftMargin: onboarding.active ? 0 : sidebar.width
        anchors.right: parent.right
        anchors.rightMargin: onboarding.active || content.chatLiesOver ? 0 : chat.width
        height: parent.height
        z: 2

        Toast {
            id: toast
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.s5
            onActed: App.toasts.act()

            Connections {
                target: App.toasts
                function onShown() {
                    toast.sentence = App.toasts.sentence;
                    toast.actionLabel = App.toasts.actionLabel;
                    toast.show();
                }
            }
        }
    }

    SheetHost {
        id: sheets
        anchors.fill: parent
    }

    QuestionCard {
        anchors.fill: parent
        question: App.folders.question
    }

    Connections {
        target: App.page
        function onLocateAsked(folderID) {
            App.folders.locate(folderID);
        }
        function onRemoveAsked(folderID) {
            App.folders.remove(folderID);
        }
        function onErrorsAsked(folderID) {
            App.history.openErrors(folderID);
        }
    }

    FocusGuard {}

    MainKeys {
        enabled: !content.isBusyElsewhere && !hand.isCarrying && !sidebar.list.isDragging
        sidebar: sidebar
        detail: detail
        chat: content.chatIsOpen ? chat : null
    }
}
