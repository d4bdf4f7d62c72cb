import QtQuick

/// What a control is called or does, while the pointer is on it: put it into the control.
Loader {
    id: tip

    property Item control: parent
    property string text
    property string shortcutText
    /// Whoever presses a control knows it, and may have opened something in the tip's place.
    property bool isKnown: false

    active: control !== null && control.hovered && control.enabled && !isKnown && text !== ""
    sourceComponent: ToolTip {
        parent: tip.control
        text: tip.text
        shortcutText: tip.shortcutText
        visible: true
    }

    Connections {
        target: tip.control

        function onPressedChanged() {
            if (tip.control.pressed)
                tip.isKnown = true;
        }

        function onHoveredChanged() {
            if (!tip.control.hovered)
                tip.isKnown = false;
        }
    }
}
