import QtQuick
import Quillon

/// What came of a change, below the settings.
Item {
    id: note

    property string text
    property bool isGood: true
    default property alias buttons: row.data

    width: parent ? parent.width : 0
    height: visible ? Math.max(words.height, row.height) : 0
    visible: text !== ""

    Glyph {
        id: mark
        anchors.left: parent.left
        anchors.leftMargin: Theme.s1
        y: Math.round((Theme.caption.lineHeight - height) / 2)
        name: note.isGood ? "tick" : "alert"
        size: 12
        color: note.isGood ? Theme.ok : Theme.warnIcon
    }

    Label {
        id: words
        anchors.left: mark.right
        anchors.leftMargin: 5
        anchors.right: row.left
        text: note.text
        style: Theme.caption
        color: note.isGood ? Theme.ok : Theme.warn
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
    }

    Row {
        id: row
        anchors.right: parent.right
    }
}
