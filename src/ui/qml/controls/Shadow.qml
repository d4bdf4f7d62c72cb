import QtQuick

/// The shadow of the rounded rectangle that it is put into, beneath it.
BorderImage {
    property int elevation: 1
    property int surfaceRadius: parent && parent.radius !== undefined ? parent.radius : Theme.rCard
    readonly property int reach: [0, 4, 40, 96][elevation]

    anchors.fill: parent
    anchors.margins: -reach
    z: -1
    visible: !Theme.isHighContrast && elevation > 0
    source: elevation > 0 ? "image://shadow/" + elevation + "/" + surfaceRadius + (Theme.isDark ? "/dark" : "/light") : ""
    border.left: 2 * reach + surfaceRadius
    border.right: border.left
    border.top: border.left
    border.bottom: border.left
    Accessible.ignored: true
}
