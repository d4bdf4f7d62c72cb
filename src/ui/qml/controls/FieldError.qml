import QtQuick

/// What is wrong with the field above it.
Item {
    id: line

    property string text

    implicitHeight: visible ? words.height + Theme.s2 : 0
    visible: text !== ""

    Glyph {
        anchors.left: parent.left
        y: words.y + Math.round((Theme.caption.lineHeight - height) / 2)
        name: line.visible ? "alert" : ""
        size: 14
        color: Theme.error
    }

    Words {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: 19
        anchors.right: parent.right
        y: Theme.s2
        text: line.text
        style: Theme.caption
        color: Theme.error
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
    }
}
