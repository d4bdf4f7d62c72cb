import QtQuick

/// Two icon buttons in one outline.
Rectangle {
    id: control

    property string firstIcon
    property string firstLabel
    property string firstShortcut
    property string secondIcon
    property string secondLabel
    property string secondShortcut
    property bool secondBusy: false
    property bool firstEnabled: true
    property bool secondEnabled: true
    property string disabledReason

    signal firstClicked
    signal secondClicked

    implicitWidth: 78
    implicitHeight: Theme.control
    radius: Theme.rControl
    color: Theme.card
    border.width: 1
    border.color: Theme.line

    Shadow {}

    Row {
        anchors.fill: parent

        IconButton {
            width: parent.width / 2
            height: parent.height
            enabled: control.firstEnabled
            kind: "part"
            radius: Theme.rControl
            iconName: control.firstIcon
            label: control.firstLabel
            shortcutText: control.firstShortcut
            disabledReason: control.disabledReason
            onClicked: control.firstClicked()
        }

        IconButton {
            width: parent.width / 2
            height: parent.height
            enabled: control.secondEnabled
            kind: "part"
            radius: Theme.rControl
            iconName: control.secondIcon
            label: control.secondLabel
            shortcutText: control.secondShortcut
            disabledReason: control.disabledReason
            busy: control.secondBusy
            onClicked: control.secondClicked()
        }
    }

    Divider {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 1
        height: parent.height - 2
    }
}
