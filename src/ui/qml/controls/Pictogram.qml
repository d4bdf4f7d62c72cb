import QtQuick

/// A drawing in one colour, from one of the image providers.
Image {
    property string provider
    property string name
    property color color: Theme.text1
    property int size: 16
    /// Where it comes from. Another one makes another picture.
    property string theme
    property bool mirrorsRightToLeft: false

    width: size
    height: size
    sourceSize.width: size
    sourceSize.height: size
    source: name ? "image://" + provider + "/" + name + "/" + size + "/" + String(color).slice(1) + "/" + theme : ""
    mirror: mirrorsRightToLeft && LayoutMirroring.enabled
    visible: name !== ""
    Accessible.ignored: true
}
