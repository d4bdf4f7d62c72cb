import QtQuick

/// The shadow of the rounded rectangle that it is put into, beneath it.
BorderImage {
    id: shadow

    property int elevation: 1
    property int surfaceRadius: parent && parent.radius !== undefined ? parent.radius : Theme.rCard
    readonly property int reach: [0, 4, 40, 96][elevation]
    /// A surface this long or longer has the same corners as any other.
    readonly property int enough: 2 * (reach + surfaceRadius) + 1
    readonly property int drawnWidth: Math.min(enough, parent ? Math.round(parent.width) : 0)
    readonly property int drawnHeight: Math.min(enough, parent ? Math.round(parent.height) : 0)

    anchors.fill: parent
    anchors.margins: -reach
    z: -1
    visible: !Theme.isHighContrast && elevation > 0 && drawnWidth > 0 && drawnHeight > 0
    source: visible ? ["image://shadow", elevation, surfaceRadius, drawnWidth, drawnHeight, Theme.isDark ? "dark" : "light"].join("/") : ""
    // Its parts are drawn as they are, or one line of them is drawn out: smoothing only costs.
    smooth: Screen.devicePixelRatio !== 1
    border.left: reach + Math.floor(drawnWidth / 2)
    border.right: border.left
    border.top: reach + Math.floor(drawnHeight / 2)
    border.bottom: border.top
    Accessible.ignored: true
}
