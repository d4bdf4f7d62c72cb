import QtQuick
import QtQuick.Templates as T
import Quillon

/// A rule: its sentence, what is wrong with it, and whether it is on.
T.ItemDelegate {
    id: card

    required property int index
    required property string key
    required property string name
    required property string iconName
    required property string conditionText
    required property string actionText
    required property var warnings
    required property bool asksDobbin
    required property bool isEnabled
    required property string description
    property bool isCarried: false
    readonly property int radius: Theme.rCard
    readonly property bool isCurrent: ListView.isCurrentItem || ListView.view !== null && ListView.view.currentIndex < 0 && index === 0
    readonly property bool focusWithin: activeFocus || grip.activeFocus || more.activeFocus || toggle.activeFocus

    signal gripTaken
    /// Places are those of the window's contents.
    signal gripMoved(point place)
    signal gripReleased(point place)
    signal gripCancelled

    height: Math.max(column.y + column.implicitHeight + Theme.s3 + 1, Theme.scaled(62))
    focusPolicy: isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    hoverEnabled: true
    opacity: isCarried ? 0.35 : 1

    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: description
    Accessible.focusable: true
    Accessible.onPressAction: edit()

    onClicked: edit()
    onActiveFocusChanged: if (activeFocus) ListView.view.currentIndex = index

    // Its rule is gone, and it waits for another: nobody is told of it till then, and the list says where
    // the focus goes on.
    ListView.onReused: visible = true
    ListView.onPooled: {
        visible = false;
        if (!focusWithin)
            return;
        focus = false;
        ListView.view.forceActiveFocus(Qt.OtherFocusReason);
    }

    function edit() {
        App.editor.edit(App.page.folderID, key);
    }

    function moveBy(offset) {
        App.page.rules.moveBy(key, offset);
        focusReason = Qt.TabFocusReason;
    }

    function openMenu() {
        ListView.view.openMenu(card, more);
    }

    function openCopyMenu() {
        ListView.view.openMenu(card, more);
        ListView.view.showCopies();
    }

    // A held key must not go on with the next rule, nor with a copy.
    Keys.onDeletePressed: event => {
        if (!Keystroke.isHeld(event))
            App.page.rules.remove(key);
    }
    Keys.onUpPressed: event => event.modifiers & Qt.AltModifier ? moveBy(-1) : ListView.view.focusRow(index - 1)
    Keys.onDownPressed: event => event.modifiers & Qt.AltModifier ? moveBy(1) : ListView.view.focusRow(index + 1)
    Keys.onSpacePressed: event => {
        if (!Keystroke.isHeld(event))
            App.page.rules.setEnabled(key, !isEnabled);
    }
    Keys.onPressed: event => {
        event.accepted = true;
        if (Keystroke.isEnter(event))
            edit();
        else if (event.key === Qt.Key_Home)
            ListView.view.focusRow(0);
        else if (event.key === Qt.Key_End)
            ListView.view.focusRow(ListView.view.count - 1);
        else if (Keystroke.isMenu(event))
            openMenu();
        else if (event.key === Qt.Key_D && event.modifiers === Qt.ControlModifier) {
            if (!Keystroke.isHeld(event))
                App.page.rules.duplicate(key);
        } else if (event.key === Qt.Key_C && event.modifiers === (Qt.ControlModifier | Qt.ShiftModifier))
            openCopyMenu();
        else
            event.accepted = false;
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => card.ListView.view.openMenuAt(card, eventPoint.position)
    }

    background: Card {
        color: card.isEnabled ? Theme.card : Qt.tint(Theme.bg, Qt.rgba(Theme.card.r, Theme.card.g, Theme.card.b, 0.6))
        highlighted: card.hovered
        elevation: card.hovered ? 2 : card.isEnabled ? 1 : 0
    }

    Item {
        id: grip

        property bool isPressed: false

        anchors.left: parent.left
        anchors.leftMargin: 9
        y: 20
        width: 12
        height: 18
        activeFocusOnTab: card.focusWithin || activeFocus
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Move %1").arg(card.name)
        Accessible.description: qsTr("Alt+Up and Alt+Down")
        Accessible.focusable: true
        Accessible.onPressAction: card.openMenu()
        // In the menu it can be moved, too; the card's own keys would switch or open the rule.
        Keys.onSpacePressed: card.openMenu()
        Keys.onReturnPressed: card.openMenu()
        Keys.onEnterPressed: card.openMenu()

        readonly property bool visualFocus: activeFocus
        readonly property int radius: 4

        Glyph {
            anchors.centerIn: parent
            name: "grip"
            color: Theme.text3
            opacity: 0.7
        }

        FocusRing {}

        MouseArea {
            property bool isDragging: false
            property point start

            anchors.fill: parent
            anchors.margins: -10
            cursorShape: pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor
            preventStealing: true
            onPressed: mouse => start = Qt.point(mouse.x, mouse.y)
            onPositionChanged: mouse => {
                const distance = Math.abs(mouse.x - start.x) + Math.abs(mouse.y - start.y);
                if (!isDragging && distance > Qt.styleHints.startDragDistance) {
                    isDragging = true;
                    card.gripTaken();
                }
                if (isDragging)
                    card.gripMoved(mapToItem(null, mouse.x, mouse.y));
            }
            onReleased: mouse => {
                if (isDragging)
                    card.gripReleased(mapToItem(null, mouse.x, mouse.y));
                isDragging = false;
            }
            onCanceled: {
                isDragging = false;
                card.gripCancelled();
            }
        }
    }

    Tile {
        id: tile
        anchors.left: grip.right
        anchors.leftMargin: 10
        y: 13
        iconName: card.iconName
        opacity: card.isEnabled ? 1 : 0.6
    }

    Column {
        id: column
        anchors.left: tile.right
        anchors.leftMargin: 10
        anchors.right: more.left
        anchors.rightMargin: Theme.s2
        y: 13
        spacing: 2

        Item {
            width: parent.width
            height: Math.max(nameLabel.height, badges.height)

            Label {
                id: nameLabel
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, parent.width - (badges.width > 0 ? badges.width + Theme.s2 : 0))
                text: card.name
                style: Theme.bodyStrong
                color: card.isEnabled ? Theme.text1 : Theme.text2
                Accessible.ignored: true
            }

            Row {
                id: badges
                anchors.left: nameLabel.right
                anchors.leftMargin: Theme.s2
                anchors.verticalCenter: parent.verticalCenter
                spacing: 6

                Badge {
                    visible: card.asksDobbin
                    kind: "dobbin"
                    glyph: "horseshoe"
                    text: qsTr("Dobbin")
                    Accessible.ignored: true
                }

                Badge {
                    visible: !card.isEnabled
                    text: qsTr("Off")
                    Accessible.ignored: true
                }
            }
        }

        RuleSummary {
            width: parent.width
            condition: card.conditionText
            action: card.actionText
            quiet: !card.isEnabled
            Accessible.ignored: true
        }

        Column {
            width: parent.width
            visible: card.warnings.length > 0
            topPadding: Theme.s1
            spacing: 6

            Repeater {
                model: card.warnings

                MarkedLine {
                    required property string modelData
                    width: column.width
                    glyph: "alert"
                    tint: Theme.warnIcon
                    text: modelData
                    ink: Theme.warn
                    isSaidElsewhere: true
                }
            }
        }
    }

    IconButton {
        id: more
        anchors.right: toggle.left
        anchors.rightMargin: Theme.s2
        anchors.verticalCenter: toggle.verticalCenter
        kind: "quiet"
        glyph: "more"
        label: qsTr("More for %1").arg(card.name)
        focusPolicy: card.focusWithin ? Qt.StrongFocus : Qt.ClickFocus
        onClicked: card.openMenu()
    }

    Switch {
        id: toggle
        anchors.right: parent.right
        anchors.rightMargin: 15
        y: 19
        label: card.name
        checked: card.isEnabled
        focusPolicy: card.focusWithin ? Qt.StrongFocus : Qt.ClickFocus
        onToggled: {
            App.page.rules.setEnabled(card.key, checked);
            checked = Qt.binding(() => card.isEnabled);
        }
    }

    FocusRing {
        target: card
    }
}
