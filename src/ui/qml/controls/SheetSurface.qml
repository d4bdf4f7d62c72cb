import QtQuick

/// What a sheet lies on.
Rectangle {
    id: surface

    radius: Theme.rSheet
    color: Theme.bg
    border.width: 1
    border.color: Theme.isDark || Theme.isHighContrast ? Theme.line : "transparent"

    Shadow {
        elevation: 3
    }

    // Opaque, and without round corners: what lies beneath the sheet need not be painted for every
    // frame of a list that scrolls in it.
    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 1
        anchors.rightMargin: 1
        anchors.topMargin: surface.radius
        anchors.bottomMargin: surface.radius
        color: surface.color
    }
}
