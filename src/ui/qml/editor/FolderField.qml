import QtQml
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Quillon

/// The folder that files go to: one that is watched already, or any other.
T.AbstractButton {
    id: control

    property var destination: ({})
    property var choices: []
    readonly property int radius: Theme.rControl
    readonly property bool isChosen: destination.path !== undefined

    signal chosen(string path)
    signal browse

    implicitHeight: Theme.controlInRow
    leftPadding: mirrored ? 0 : 10
    rightPadding: mirrored ? 10 : 0
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    onClicked: menu.open()
    Keys.onPressed: event => {
        event.accepted = Keystroke.isEnter(event) || event.key === Qt.Key_Down && event.modifiers === Qt.NoModifier;
        if (event.accepted)
            menu.open();
    }

    Accessible.role: Accessible.ComboBox
    Accessible.name: qsTr("Folder")
    Accessible.description: control.isChosen ? control.destination.name + ", " + control.destination.place : words.text
    Accessible.onPressAction: menu.open()

    background: FieldSurface {
        color: control.hovered || control.down ? Theme.hover : Theme.card
    }

    contentItem: RowLayout {
        spacing: Theme.s2

        Item {
            implicitWidth: 20
            implicitHeight: 20

            FolderTile {
                id: tile
                visible: control.isChosen && control.destination.tint >= 0
                size: 20
                radius: Theme.rSmall
                iconSize: 12
                tint: visible ? control.destination.tint : 0
                symbol: control.destination.symbol ?? ""
            }

            Icon {
                anchors.centerIn: parent
                visible: !tile.visible
                name: "folder"
                color: control.isChosen ? Theme.text2 : Theme.text3
            }
        }

        Label {
            id: words
            Layout.maximumWidth: Math.ceil(implicitWidth) + 1
            Layout.fillWidth: true
            text: control.isChosen ? control.destination.name : qsTr("Choose a folder")
            style: control.isChosen ? Theme.bodyMedium : Theme.body
            color: control.isChosen ? Theme.text1 : Theme.text3
            Accessible.ignored: true
        }

        Label {
            Layout.fillWidth: true
            text: control.destination.place ?? ""
            color: Theme.text3
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }

        Button {
            kind: "link"
            text: qsTr("Choose…")
            Accessible.name: qsTr("Choose a folder")
            onClicked: control.browse()
        }
    }

    FocusRing {
        target: control
    }

    Menu {
        id: menu
        x: control.mirrored ? control.width - width : 0
        y: control.height + 4
        width: Math.max(implicitWidth, control.width)

        Instantiator {
            model: control.choices

            delegate: MenuItem {
                required property var modelData
                text: modelData.name
                shortcutText: modelData.place
                iconName: modelData.symbol
                onTriggered: control.chosen(modelData.path)
            }

            onObjectAdded: (index, object) => menu.insertItem(index, object)
            onObjectRemoved: (index, object) => menu.removeItem(object)
        }

        MenuDivider {
            visible: control.choices.length > 0
        }

        MenuItem {
            iconName: "document-open-folder"
            text: qsTr("Choose…")
            onTriggered: control.browse()
        }
    }
}
