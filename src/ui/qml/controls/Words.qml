import QtQuick

/// Text in one of the type styles: see `Label`, which explains itself where it doesn't fit.
Text {
    property var style: Theme.body

    color: Theme.text1
    font.family: Theme.fontFamily
    font.pixelSize: style.size
    font.weight: style.weight
    font.letterSpacing: style.tracking
    lineHeight: style.lineHeight
    lineHeightMode: Text.FixedHeight
    elide: wrapMode === Text.NoWrap ? Text.ElideRight : Text.ElideNone
    verticalAlignment: Text.AlignVCenter
    horizontalAlignment: Text.AlignLeft
    textFormat: Text.PlainText

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
