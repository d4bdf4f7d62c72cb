import QtQuick
import QtQuick.Templates as T

/// One line of a picker's menu.
T.ItemDelegate {
    id: item

    required property T.ComboBox picker
    required property var model
    required property int index
    readonly property bool chosen: picker.currentIndex === index
    readonly property color ink: highlighted ? Theme.onAccent : Theme.text1

    width: ListView.view ? ListView.view.width : implicitWidth
    implicitHeight: Theme.rowMenu
    padding: 0
    leftPadding: 10
    rightPadding: 10
    text: picker.textAt(index)
    highlighted: picker.highlightedIndex === index
    hoverEnabled: true

    Accessible.role: Accessible.ListItem
    Accessible.name: text
    Accessible.selected: chosen

    contentItem: Item {
        Icon {
            id: icon
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: item.picker.iconRole === "" ? "" : item.picker.iconOf(item.index)
            color: item.highlighted ? Theme.onAccent : Theme.text2
        }

        Label {
            anchors.left: parent.left
            anchors.leftMargin: icon.visible ? 26 : 0
            anchors.right: tick.left
            anchors.rightMargin: Theme.s2
            anchors.verticalCenter: parent.verticalCenter
            text: item.text
            color: item.ink
            Accessible.ignored: true
        }

        Glyph {
            id: tick
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            name: "tick"
            size: 12
            visible: item.chosen
            color: item.highlighted ? Theme.onAccent : Theme.accent
        }
    }

    background: Rectangle {
        radius: Theme.rSmall
        color: item.highlighted ? Theme.accent : "transparent"
    }
}
