import QtQuick

/// Makes a small control as easy to hit as a large one: set it as the control's containmentMask.
Item {
    anchors.centerIn: parent
    width: parent ? Math.max(parent.width, Theme.smallestHit) : 0
    height: parent ? Math.max(parent.height, Theme.smallestHit) : 0
}
