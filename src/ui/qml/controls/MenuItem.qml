import QtQuick
import QtQuick.Templates as T

T.MenuItem {
    id: control

    property string iconName: subMenu && subMenu.iconName !== undefined ? subMenu.iconName : ""
    property string shortcutText
    property bool destructive: false
    /// One of several, or on and off. Which one is chosen is for whoever shows it to say.
    property bool isChoice: false
    property bool isChosen: false
    readonly property color ink: highlighted ? Theme.onAccent : destructive ? Theme.error : Theme.text1

    implicitHeight: visible ? Theme.rowMenu : 0
    implicitWidth: 10 + 16 + 10 + words.implicitWidth + 16 + (shortcutText === "" ? 14 : hint.implicitWidth) + 10
    padding: 0
    leftPadding: 10
    rightPadding: 10
    opacity: enabled ? 1 : Theme.disabledOpacity
    hoverEnabled: true

    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.checkable: isChoice
    Accessible.checked: isChosen
    Accessible.onPressAction: triggered()

    contentItem: Item {
        Icon {
            id: icon
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: control.iconName
            color: control.ink
        }

        Label {
            id: words
            anchors.left: parent.left
            anchors.leftMargin: 26
            anchors.right: end.left
            anchors.rightMargin: Theme.s2
            anchors.verticalCenter: parent.verticalCenter
            text: control.text
            color: control.ink
            Accessible.ignored: true
        }

        Item {
            id: end
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: control.subMenu || control.isChoice ? 14 : hint.width
            height: parent.height

            Label {
                id: hint
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, Math.max(control.width / 2, control.availableWidth - 26 - words.implicitWidth - Theme.s2))
                elide: Text.ElideMiddle
                visible: text !== ""
                text: control.shortcutText
                style: Theme.caption
                color: control.highlighted ? Theme.onAccent : Theme.text3
                Accessible.ignored: true
            }
        }
    }

    arrow: Glyph {
        x: control.mirrored ? control.leftPadding : control.width - width - control.rightPadding
        anchors.verticalCenter: parent.verticalCenter
        visible: control.subMenu !== null
        name: "chevron"
        rotation: control.mirrored ? 90 : -90
        size: 10
        color: control.highlighted ? Theme.onAccent : Theme.text2
    }

    indicator: Glyph {
        x: control.mirrored ? control.leftPadding : control.width - width - control.rightPadding
        anchors.verticalCenter: parent.verticalCenter
        visible: control.isChosen
        name: "tick"
        size: 12
        color: control.highlighted ? Theme.onAccent : Theme.accent
    }

    background: Rectangle {
        radius: Theme.rSmall
        color: control.highlighted ? Theme.accent : "transparent"
    }
}
