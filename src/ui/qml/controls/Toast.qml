import QtQuick

/// One sentence over what is below, with at most one thing to do about it. show() starts its time,
/// which does not run while the pointer or the focus is on it.
Rectangle {
    id: toast

    property string sentence
    property string actionLabel
    readonly property bool shown: state === "shown"
    readonly property bool isHeld: hover.hovered || action.activeFocus

    signal acted

    function show() {
        state = "";
        state = "shown";
        announcement.say(sentence);
    }

    function hide() {
        state = "";
    }

    implicitWidth: row.implicitWidth
    implicitHeight: Math.max(Theme.scaled(44), words.implicitHeight + 2 * Theme.s3)
    width: Math.min(implicitWidth, parent ? parent.width - 2 * Theme.s5 : implicitWidth)
    radius: Theme.rCard
    color: Theme.toast
    border.width: Theme.isHighContrast || Theme.isDark ? 1 : 0
    border.color: Theme.isHighContrast ? Theme.onToast : Theme.lineStrong
    opacity: 0
    visible: opacity > 0
    Keys.onEscapePressed: hide()

    Shadow {
        elevation: 2
    }

    Announcement {
        id: announcement
    }

    HoverHandler {
        id: hover
    }

    Timer {
        id: clock
        interval: toast.actionLabel === "" ? Theme.toastStay : Theme.toastStayWithAction
        running: toast.shown && !toast.isHeld
        onTriggered: toast.hide()
    }

    Row {
        id: row
        anchors.verticalCenter: parent.verticalCenter
        leftPadding: Theme.s4
        rightPadding: Theme.s4
        spacing: Theme.s5

        Label {
            id: words
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, toast.parent ? toast.parent.width - 2 * Theme.s5 - 2 * Theme.s4 - (action.visible ? action.width + Theme.s5 : 0) : implicitWidth)
            text: toast.sentence
            color: Theme.onToast
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        ToastAction {
            id: action
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: toast.actionLabel
            onClicked: {
                toast.hide();
                toast.acted();
            }
        }
    }

    states: State {
        name: "shown"
        PropertyChanges {
            target: toast
            opacity: 1
        }
    }

    transitions: [
        Transition {
            to: "shown"
            NumberAnimation {
                property: "opacity"
                duration: Theme.toastIn
                easing.type: Easing.OutCubic
            }
        },
        Transition {
            to: ""
            NumberAnimation {
                property: "opacity"
                duration: Theme.toastOut
                easing.type: Easing.InCubic
            }
        }
    ]
}
