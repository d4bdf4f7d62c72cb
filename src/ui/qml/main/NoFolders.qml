import QtQuick
import QtQuick.Shapes
import Quillon

/// What there is to see before any folder is watched: a place to drop one.
Item {
    DragArea {
        width: parent.width
        height: 60
    }

    DropArea {
        id: zone
        anchors.fill: parent
        onEntered: drag => drag.accepted = drag.hasUrls && App.folders.mayTake(drag.urls)
        onDropped: drop => {
            App.folders.addDropped(drop.urls, -1);
            drop.accept(Qt.CopyAction);
        }
    }

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -6
        width: Math.min(parent.width - 2 * Theme.s6, 440)
        spacing: Theme.s6

        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(360, parent.width)
            height: 176

            Rectangle {
                anchors.fill: parent
                radius: Theme.rSheet
                color: zone.containsDrag ? Theme.accentSoft : "transparent"
            }

            Shape {
                anchors.fill: parent

                ShapePath {
                    strokeColor: zone.containsDrag ? Theme.accent : Theme.lineStrong
                    strokeWidth: 1
                    strokeStyle: ShapePath.DashLine
                    dashPattern: [3, 3]
                    fillColor: "transparent"
                    startX: 14.5
                    startY: 0.5
                    PathLine { x: 345.5; y: 0.5 }
                    PathArc { x: 359.5; y: 14.5; radiusX: 14; radiusY: 14 }
                    PathLine { x: 359.5; y: 161.5 }
                    PathArc { x: 345.5; y: 175.5; radiusX: 14; radiusY: 14 }
                    PathLine { x: 14.5; y: 175.5 }
                    PathArc { x: 0.5; y: 161.5; radiusX: 14; radiusY: 14 }
                    PathLine { x: 0.5; y: 14.5 }
                    PathArc { x: 14.5; y: 0.5; radiusX: 14; radiusY: 14 }
                }
            }

            Tile {
                id: tile
                anchors.horizontalCenter: parent.horizontalCenter
                y: 46
                size: 56
                radius: Theme.rSheet
                color: Theme.accentSoft
                iconName: "folder-new"
                iconColor: Theme.accentOnSoft
            }

            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.top: tile.bottom
                anchors.topMargin: 10
                text: qsTr("Drop a folder here")
                color: Theme.text2
            }
        }

        EmptyState {
            width: parent.width
            title: qsTr("Add a folder to begin")
            text: qsTr("Downloads is a good first one. Quillon only looks in the folders you add.")

            Button {
                kind: "primary"
                large: true
                iconName: "list-add"
                text: qsTr("Add Folder")
                shortcutText: "Ctrl+Shift+N"
                focus: true
                onClicked: App.folders.chooseNew()
            }
        }
    }
}
