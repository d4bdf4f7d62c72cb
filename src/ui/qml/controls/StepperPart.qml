import QtQuick

/// The plus or minus of a stepper.
Item {
    id: part

    property string iconName
    property bool hovered
    property bool pressed

    implicitWidth: 24
    opacity: enabled ? 1 : Theme.disabledOpacity

    Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        radius: Theme.rSmall
        color: part.enabled && (part.hovered || part.pressed) ? Theme.hover : "transparent"
    }

    Icon {
        anchors.centerIn: parent
        name: part.iconName
        size: 12
        color: Theme.text2
    }
}
