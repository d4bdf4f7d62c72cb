import QtQml
import QtQuick
import Quillon

/// "Add Action", with a menu of what can be done.
Button {
    id: button

    property var types: []

    signal chosen(int type)

    kind: "link"
    iconName: "list-add"
    text: qsTr("Add Action")
    leftPadding: mirrored ? 26 : 10
    rightPadding: mirrored ? 10 : 26
    Accessible.role: Accessible.ButtonMenu
    onClicked: open()

    function open() {
        menu.open();
    }

    Glyph {
        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron"
        size: 10
        color: Theme.accent
    }

    Menu {
        id: menu
        x: button.mirrored ? 0 : button.width - width
        y: button.height + 4

        Instantiator {
            model: button.types

            delegate: MenuItem {
                required property int index
                required property var modelData
                text: modelData.text
                iconName: modelData.iconName
                onTriggered: button.chosen(index)
            }

            onObjectAdded: (index, object) => menu.insertItem(index, object)
            onObjectRemoved: (index, object) => menu.removeItem(object)
        }
    }
}
