import QtQuick
import QtQuick.Templates as T
import Quillon

/// What a row is dragged by.
T.AbstractButton {
    id: grip

    property string spoken
    readonly property int radius: 4
    readonly property alias isDragged: drag.active
    readonly property real distance: drag.activeTranslation.y
    /// Where the pointer is in the window's contents.
    readonly property point pointer: drag.centroid.scenePosition

    signal grabbed
    signal moved
    signal released

    implicitWidth: 12
    implicitHeight: Theme.controlInRow
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.Button
    Accessible.name: qsTr("Move %1").arg(spoken)
    Accessible.description: qsTr("Alt+Up and Alt+Down")

    function drop() {
        drag.enabled = false;
        drag.enabled = true;
    }

    contentItem: Item {
        Glyph {
            anchors.centerIn: parent
            name: "grip"
            color: Theme.text3
            opacity: 0.7
        }
    }

    HoverHandler {
        cursorShape: grip.isDragged ? Qt.ClosedHandCursor : Qt.OpenHandCursor
    }

    DragHandler {
        id: drag
        target: null
        margin: 10
        cursorShape: Qt.ClosedHandCursor
        onActiveChanged: {
            if (!active) {
                grip.released();
                return;
            }
            grip.forceActiveFocus(Qt.MouseFocusReason);
            grip.grabbed();
        }
        onActiveTranslationChanged: {
            if (active)
                grip.moved();
        }
    }

    FocusRing {
        target: grip
    }
}
