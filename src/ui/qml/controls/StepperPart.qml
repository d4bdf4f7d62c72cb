import QtQuick

/// The plus or minus of a stepper.
Item {
    id: part

    property string iconName
    property bool hovered
    property bool pressed
    /// How far the middle of what can be hit lies beside its own, away from the number.
    property real hitOffset: 0

    implicitWidth: 24
    opacity: enabled ? 1 : Theme.disabledOpacity
    containmentMask: hitArea

    HitArea {
        id: hitArea
        anchors.horizontalCenterOffset: part.hitOffset
    }

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
