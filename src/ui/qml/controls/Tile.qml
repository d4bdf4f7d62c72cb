import QtQuick

/// A small rounded square with an icon or a glyph. Decoration: what it stands for is said beside it.
Rectangle {
    id: tile

    property string iconName
    property string glyph
    property int size: 32
    property int iconSize: size >= 40 ? 22 : 16
    property color iconColor: Theme.text2

    implicitWidth: size
    implicitHeight: size
    radius: size >= 40 ? 11 : size >= 30 ? Theme.rControl : Theme.rTile
    color: Theme.isDark ? Theme.hover : Theme.sunken
    Accessible.ignored: true

    Symbol {
        anchors.centerIn: parent
        iconName: tile.iconName
        glyph: tile.glyph
        size: tile.iconSize
        color: tile.iconColor
    }
}
