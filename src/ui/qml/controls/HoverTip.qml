import QtQuick

/// What a control is called or does, while the pointer is on it: put it into the control.
Loader {
    id: tip

    property Item control: parent
    property string text
    property string shortcutText

    active: control !== null && control.hovered && control.enabled && text !== ""
    sourceComponent: ToolTip {
        parent: tip.control
        text: tip.text
        shortcutText: tip.shortcutText
        visible: true
    }
}
