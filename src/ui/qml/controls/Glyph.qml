import QtQuick

/// One of Quillon's own drawings: guard, horseshoe, grip, more, chevron (points down), tick, cross,
/// alert, bar, mark.
Image {
    property string name
    property color color: Theme.text1
    property int size: 16
    property bool mirrorsRightToLeft: false

    width: size
    height: size
    sourceSize.width: size
    sourceSize.height: size
    source: name ? "image://glyph/" + name + "/" + size + "/" + String(color).slice(1) : ""
    mirror: mirrorsRightToLeft && LayoutMirroring.enabled
    visible: name !== ""
    Accessible.ignored: true
}
