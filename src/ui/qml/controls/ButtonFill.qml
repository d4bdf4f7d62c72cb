import QtQuick

/// What lies beneath the words of a button.
Rectangle {
    id: fill

    property string kind
    property bool hovered
    property bool pressed
    readonly property bool outlined: kind === "secondary"

    border.width: outlined ? 1 : 0
    border.color: pressed ? Theme.lineStrong : Theme.line
    color: {
        switch (kind) {
        case "primary":
            return pressed ? Theme.accentPressed : hovered ? Theme.accentHover : Theme.accent;
        case "dobbin":
            return pressed ? Theme.dobbinPressed : hovered ? Theme.dobbinHover : Theme.dobbin;
        case "secondary":
            return pressed || hovered ? Theme.hover : Theme.card;
        case "link":
            return "transparent";
        default:
            return pressed || hovered ? Theme.hover : "transparent";
        }
    }

    Behavior on color {
        ColorAnimation {
            duration: Theme.fast
            easing.type: Easing.OutQuad
        }
    }

    Shadow {
        elevation: fill.outlined && !fill.pressed ? 1 : 0
    }
}
