import QtQuick

/// Says why a control is disabled, which hears nothing of the pointer itself: put it into the control.
Loader {
    id: tip

    property Item control: parent
    property string reason

    active: control !== null && !control.enabled && reason !== ""
    sourceComponent: Item {
        HoverHandler {
            id: hover
            parent: tip.control ? tip.control.parent : null
        }

        readonly property point spot: hover.hovered ? tip.control.mapFromItem(hover.parent, hover.point.position) : Qt.point(-1, -1)

        ToolTip {
            parent: tip.control
            text: tip.reason
            visible: hover.hovered && tip.control.contains(spot)
        }
    }
}
