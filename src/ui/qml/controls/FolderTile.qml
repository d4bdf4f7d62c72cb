import QtQuick

/// A folder's tint and symbol.
Tile {
    property int tint: 0
    property string symbol

    color: Theme.tint(tint)
    iconColor: Theme.onTint
    iconName: symbol === "" ? "folder" : symbol
}
