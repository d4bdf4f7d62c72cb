import QtQuick

/// The extension of a file on its kind's colour.
Rectangle {
    id: tile

    property string fileName
    property string kind: "other"
    property int size: 32
    readonly property int dot: fileName.lastIndexOf(".")
    readonly property string extension: kind !== "folder" && dot > 0 ? fileName.slice(dot + 1, dot + 5).toUpperCase() : ""

    implicitWidth: size
    implicitHeight: size
    radius: size >= 30 ? Theme.rControl : Theme.rTile
    color: Theme.kindFill(kind)
    Accessible.ignored: true

    Text {
        anchors.centerIn: parent
        visible: tile.extension !== ""
        text: tile.extension
        textFormat: Text.PlainText
        color: Theme.kindText(tile.kind)
        font.family: Theme.fontFamily
        font.pixelSize: tile.extension.length > 3 ? 9 : 10
        font.weight: Font.Bold
        Accessible.ignored: true
    }

    Icon {
        anchors.centerIn: parent
        visible: tile.extension === ""
        name: tile.kind === "folder" ? "folder" : "text-x-generic"
        color: Theme.kindText(tile.kind)
    }
}
