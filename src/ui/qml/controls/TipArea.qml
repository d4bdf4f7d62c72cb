import QtQuick

/// Shows a tooltip while the pointer rests on it, and takes nothing from what lies beneath.
Item {
    id: area

    property string text
    property string shortcutText

    HoverHandler {
        id: hover
    }

    ToolTip {
        text: area.text
        shortcutText: area.shortcutText
        visible: hover.hovered && area.text !== ""
    }
}
