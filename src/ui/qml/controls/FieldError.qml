import QtQuick

/// What is wrong with the field above it.
Item {
    id: error

    property string text

    implicitHeight: visible ? line.implicitHeight + Theme.s2 : 0
    visible: text !== ""

    MarkedLine {
        id: line
        y: Theme.s2
        width: parent.width
        glyph: "alert"
        tint: Theme.error
        text: error.text
        ink: Theme.error
        role: Accessible.AlertMessage
    }
}
