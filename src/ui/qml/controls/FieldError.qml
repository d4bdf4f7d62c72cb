import QtQuick

/// What is wrong with the field above it.
Row {
    id: line

    property string text

    spacing: 6
    topPadding: Theme.s2
    visible: text !== ""

    Glyph {
        y: line.topPadding + (Theme.caption.lineHeight - height) / 2
        name: "alert"
        size: 14
        color: Theme.error
    }

    Label {
        width: Math.min(implicitWidth, Math.max(0, line.width - x))
        text: line.text
        style: Theme.caption
        color: Theme.error
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
    }
}
