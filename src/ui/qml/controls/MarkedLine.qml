import QtQuick

/// A small sentence behind its mark.
Item {
    id: line

    property string glyph
    property string iconName
    property string text
    property color tint
    property color ink: Theme.text2
    property int role: Accessible.StaticText
    property bool isSaidElsewhere: false

    implicitHeight: words.implicitHeight

    Symbol {
        anchors.left: parent.left
        y: Math.round((Theme.caption.lineHeight - height) / 2)
        glyph: line.glyph
        iconName: line.iconName
        size: 14
        color: line.tint
    }

    Label {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.right: parent.right
        text: line.text
        style: Theme.caption
        color: line.ink
        wrapMode: Text.Wrap
        Accessible.role: line.role
        Accessible.ignored: line.isSaidElsewhere
    }
}
