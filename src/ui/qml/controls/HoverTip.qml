import QtQuick

/// What a control is called or does, while the pointer is on it: put it into the control.
Loader {
    id: tip

    property Item control: parent
    property string text
    property string shortcutText
    /// Whoever presses a control knows it, and may have opened something in the tip's place.
    property bool isKnown: false
    readonly property bool isHovered: control !== null && control.hovered
    readonly property bool isPressed: control !== null && control.pressed

    active: isHovered && control.enabled && !isKnown && text !== ""
    onIsPressedChanged: isKnown = isKnown || isPressed
    onIsHoveredChanged: isKnown = isKnown && isHovered
    sourceComponent: ToolTip {
        parent: tip.control
        text: tip.text
        shortcutText: tip.shortcutText
        visible: true
    }
}
