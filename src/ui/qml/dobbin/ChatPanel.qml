import QtQuick
import Quillon

/// The conversation with Dobbin, at the end of the main window. Its width tells how far it is open.
Item {
    id: panel

    /// What the window's buttons take of its header.
    property int endInset: 0
    /// It lies over what is beside it.
    property bool floating: false
    /// Of the window's corners.
    property int radius: 0
    readonly property int fullWidth: Theme.scaled(320)
    /// Where the focus goes back to.
    property Item cameFrom

    implicitWidth: fullWidth
    width: App.chat.isOpen ? fullWidth : 0
    visible: App.chat.isOpen || width > 0
    clip: width < fullWidth

    Behavior on width {
        NumberAnimation {
            duration: Theme.slow
            easing.type: Easing.OutCubic
        }
    }

    function takeFocus() {
        focusField();
        return true;
    }

    function focusField() {
        if (content.item)
            content.item.focusField();
    }

    Connections {
        target: App.chat
        function onIsOpenChanged() {
            if (App.chat.isOpen)
                panel.cameFrom = FocusReturn.openerOf(panel.Window.activeFocusItem);
            else if (content.activeFocus)
                FocusReturn.giveTo(panel.cameFrom);
        }
        function onFocusRequested() {
            panel.focusField();
        }
    }

    Loader {
        id: content
        active: panel.visible
        anchors.left: parent.left
        width: panel.fullWidth
        height: parent.height
        sourceComponent: ChatContent {
            endInset: panel.endInset
            floating: panel.floating
            radius: panel.radius
        }
    }
}
