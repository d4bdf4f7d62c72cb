import QtQuick
import QtQuick.Templates as T
import Quillon

/// A line that opens and closes what follows it.
T.AbstractButton {
    id: line

    property bool canOpen: false
    property bool isOpen: false
    property bool isError: false
    readonly property int radius: Theme.rSmall

    signal toggled

    implicitWidth: row.implicitWidth
    implicitHeight: Math.max(row.implicitHeight, 20)
    enabled: canOpen
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    onClicked: toggled()
    Keys.onPressed: event => Keystroke.press(event, line)

    Accessible.role: canOpen ? Accessible.Button : Accessible.StaticText
    Accessible.name: text
    Accessible.checkable: canOpen
    Accessible.checked: isOpen
    Accessible.onPressAction: toggled()

    contentItem: Row {
        id: row
        spacing: 6

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: line.text
            style: Theme.captionStrong
            color: line.isError ? Theme.error : Theme.accentOnSoft
            font.underline: line.hovered
            Accessible.ignored: true
        }

        Glyph {
            anchors.verticalCenter: parent.verticalCenter
            visible: line.canOpen
            name: "chevron"
            size: 10
            rotation: line.isOpen ? 180 : 0
            color: Theme.accentOnSoft
        }
    }

    FocusRing {
        target: line
    }
}
