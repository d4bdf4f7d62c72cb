import QtQuick
import QtQuick.Templates as T

/// A choice from a menu. model and textRole as a ComboBox's; iconRole names the icon of an item.
T.ComboBox {
    id: control

    property string label
    property string iconName
    property string iconRole
    property bool inRow: false
    /// The widest item decides where it is wider.
    property int leastWidth: 0
    property int radius: Theme.rControl

    implicitHeight: inRow ? Theme.controlInRow : Theme.control
    implicitWidth: Math.max(leastWidth, widest + leftPadding + rightPadding)
    leftPadding: mirrored ? 30 : 11
    rightPadding: mirrored ? 11 : 30
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : Theme.disabledOpacity

    readonly property string currentIcon: iconRole !== "" && currentIndex >= 0 ? iconOf(currentIndex) : iconName
    readonly property int iconRoom: currentIcon !== "" ? 23 : 0
    readonly property real widest: {
        let most = 0;
        for (let index = 0; index < count; ++index)
            most = Math.max(most, metrics.advanceWidth(textAt(index)));
        return Math.ceil(most) + iconRoom + 1;
    }

    function iconOf(index) {
        if (Array.isArray(model))
            return model[index][iconRole] || "";
        const item = delegateModel && delegateModel.items ? delegateModel.items.get(index) : null;
        return item ? item.model[iconRole] || "" : "";
    }

    // The release of the key would choose from a menu that its press opened.
    property bool opensOnRelease: false

    // What the picker lies in must not be removed beneath its menu.
    Keys.onDeletePressed: event => event.accepted = popup.visible
    Keys.onPressed: event => {
        opensOnRelease = Keystroke.isEnter(event) && !popup.visible;
        event.accepted = opensOnRelease || openWith(event);
    }
    Keys.onReleased: event => {
        event.accepted = opensOnRelease && Keystroke.isEnter(event);
        if (event.accepted)
            popup.open();
        opensOnRelease = false;
    }

    /// The keys that would choose another at once open the menu first; a letter then searches there.
    function openWith(event) {
        if (popup.visible || (event.modifiers & ~(Qt.ShiftModifier | Qt.KeypadModifier)) !== 0)
            return false;
        const isArrow = event.key === Qt.Key_Up || event.key === Qt.Key_Down;
        const isEnd = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (isArrow || isEnd || /^[^\s\x00-\x1f\x7f]$/.test(event.text))
            popup.open();
        return isArrow;
    }

    Accessible.role: Accessible.ComboBox
    Accessible.name: label
    Accessible.description: displayText
    Accessible.onPressAction: popup.open()

    FontMetrics {
        id: metrics
        font.family: Theme.fontFamily
        font.pixelSize: Theme.bodyMedium.size
        font.weight: Theme.bodyMedium.weight
    }

    contentItem: Item {
        Icon {
            id: icon
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: control.currentIcon
            color: Theme.text2
        }

        Label {
            anchors.left: parent.left
            anchors.leftMargin: control.iconRoom
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: control.displayText
            style: Theme.bodyMedium
            Accessible.ignored: true
        }
    }

    indicator: Glyph {
        x: control.mirrored ? 11 : control.width - width - 11
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron"
        size: 10
        color: Theme.text2
    }

    background: Rectangle {
        radius: control.radius
        color: control.hovered || control.down ? Theme.hover : Theme.card
        border.width: 1
        border.color: Theme.lineStrong
    }

    delegate: PickerItem {
        picker: control
    }

    Connections {
        target: Qt.application
        function onAboutToQuit() {
            control.popup.close();
        }
    }

    popup: T.Popup {
        y: control.height + 4
        x: control.mirrored ? control.width - width : 0
        width: Math.min(Math.max(control.width, control.widest + 60 + (control.iconRole !== "" && control.iconRoom === 0 ? 26 : 0)), control.Window.width - 24)
        height: Math.min(contentItem.implicitHeight + topPadding + bottomPadding, control.Window.height - 24)
        margins: 12
        padding: 5

        contentItem: ListView {
            Accessible.role: Accessible.List
            Accessible.name: control.label
            implicitHeight: contentHeight
            clip: true
            // Lines that are still there when their picker goes take the process with them.
            model: control.popup.visible ? control.delegateModel : null
            currentIndex: control.highlightedIndex
            onModelChanged: Qt.callLater(positionViewAtIndex, control.highlightedIndex, ListView.Contain)
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
        }

        background: MenuSurface {}
        enter: MenuEnter {}
    }

    FocusRing {
        target: control
    }
}
