import QtQuick

/// Text in one of the type styles. What doesn't fit is elided, and then a tooltip shows all of it.
Text {
    id: label

    property var style: Theme.body
    property bool showsTip: true

    color: Theme.text1
    font.family: Theme.fontFamily
    font.pixelSize: style.size
    font.weight: style.weight
    font.letterSpacing: style.tracking
    lineHeight: style.lineHeight
    lineHeightMode: Text.FixedHeight
    elide: wrapMode === Text.NoWrap ? Text.ElideRight : Text.ElideNone
    verticalAlignment: Text.AlignVCenter
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Loader {
        active: label.truncated && label.showsTip
        anchors.fill: parent
        sourceComponent: TipArea {
            text: label.text
        }
    }
}
