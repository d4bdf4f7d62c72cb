import QtQuick
import QtQuick.Layouts

/// A dialog over the window that it fills. Its children are the body; the footer has what destroys at
/// its start, then a note, then the buttons. Ctrl+Enter presses `primary`, Esc asks to be closed.
FocusScope {
    id: sheet

    property string title
    property string caption
    property Component tile
    property int sheetWidth: 720
    property int sheetHeight: 620
    /// Whether the sheet is as high as its body needs, up to sheetHeight.
    property bool fits: false
    /// Whether the body scrolls as a whole. Otherwise it fills the room, and scrolls its own lists.
    property bool scrolls: false
    property int bodyMargin: Theme.s6
    property Item primary
    default property alias body: bodySlot.data
    property alias headerEnd: headerEnd.data
    /// Between the body and the footer, from edge to edge.
    property alias pinned: pinned.data
    property alias destructive: destructive.data
    property alias note: note.data
    property alias footer: buttons.data
    readonly property alias panel: panel
    readonly property alias scroller: scroller
    /// What had the focus before, and gets it back.
    property Item opener
    property var shownIn: null

    signal closeRequested

    anchors.fill: parent
    focus: true

    Accessible.role: Accessible.Dialog
    Accessible.name: title
    Accessible.description: caption

    function pressPrimary() {
        if (primary && primary.enabled && primary.visible)
            primary.clicked();
    }

    /// The sheet that an item lies in, if any.
    function sheetOf(item) {
        while (item && item.pressPrimary === undefined)
            item = item.parent;
        return item;
    }

    Component.onCompleted: {
        shownIn = Window.window;
        const last = sheetOf(Window.activeFocusItem);
        opener = last ? last.opener : FocusReturn.openerOf(Window.activeFocusItem);
        if (!activeFocus)
            forceActiveFocus(Qt.PopupFocusReason);
        entrance.start();
    }
    Component.onDestruction: {
        const now = shownIn ? shownIn.activeFocusItem : null;
        if (!now || !sheetOf(now) || sheetOf(now) === sheet)
            FocusReturn.giveTo(opener);
    }

    Keys.onEscapePressed: closeRequested()
    Keys.onPressed: event => {
        const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        event.accepted = isReturn && (event.modifiers & Qt.ControlModifier) !== 0 && (event.modifiers & Qt.ShiftModifier) === 0;
        if (event.accepted)
            pressPrimary();
    }

    // Tab stays in the sheet: these two ends are tied together.
    Item {
        id: head
        activeFocusOnTab: true
        Accessible.ignored: true
        onActiveFocusChanged: if (activeFocus) tail.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    }

    Scrim {
        id: scrim
        anchors.fill: parent
    }

    SheetSurface {
        id: panel

        readonly property int highest: Theme.scaled(sheet.sheetHeight)
        readonly property int edge: sheet.height < 720 ? 12 : 24
        readonly property real needed: header.height + bodySlot.childrenRect.height + Theme.s4 + pinned.height + footer.height

        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.round((parent.height - height) / 2) + rise
        width: Math.min(Theme.scaled(sheet.sheetWidth), parent.width - 2 * edge)
        height: Math.min(sheet.fits ? needed : highest, highest, parent.height - 2 * edge)

        property real rise: 0

        Item {
            id: header
            width: parent.width
            height: Math.max(Theme.s6 + titles.height, Theme.s6 + Theme.s8) + Theme.s4

            Loader {
                id: tileSlot
                anchors.left: parent.left
                anchors.leftMargin: Theme.s6
                y: Theme.s6
                sourceComponent: sheet.tile
            }

            Column {
                id: titles
                anchors.left: tileSlot.right
                anchors.leftMargin: sheet.tile ? Theme.s3 : 0
                anchors.right: headerEnd.left
                anchors.rightMargin: Theme.s3
                y: Theme.s6 - 4

                Label {
                    width: parent.width
                    text: sheet.title
                    style: Theme.sheetTitle
                    Accessible.role: Accessible.Heading
                    Accessible.ignored: text === ""
                }

                Label {
                    width: parent.width
                    visible: text !== ""
                    text: sheet.caption
                    style: Theme.caption
                    color: Theme.text2
                    wrapMode: Text.Wrap
                }
            }

            Row {
                id: headerEnd
                anchors.right: parent.right
                anchors.rightMargin: Theme.s6
                y: Theme.s6 + (Theme.s8 - height) / 2
                spacing: Theme.s2
            }
        }

        Flickable {
            id: scroller

            // What is at the edges keeps its focus ring.
            readonly property int slack: Theme.s2

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: header.bottom
            anchors.topMargin: -slack
            anchors.bottom: pinned.top
            interactive: sheet.scrolls && contentHeight > height
            clip: interactive
            boundsBehavior: Flickable.StopAtBounds
            contentWidth: width
            contentHeight: sheet.scrolls ? bodySlot.height + slack + Theme.s4 : height

            Item {
                id: bodySlot
                x: sheet.bodyMargin
                y: scroller.slack
                width: scroller.width - 2 * x
                height: sheet.scrolls ? childrenRect.height : scroller.height - y
            }
        }

        RevealFocus {
            view: scroller
        }

        ScrollBar {
            flickable: scroller
        }

        Item {
            id: pinned
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: footer.top
            height: childrenRect.height
        }

        Item {
            id: footer
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            visible: buttons.children.length > 0
            height: visible ? Math.max(Theme.control, footerRow.height) + 28 : 0

            Rectangle {
                anchors.fill: parent
                radius: Theme.rSheet
                color: Theme.card

                Rectangle {
                    width: parent.width
                    height: parent.radius
                    color: Theme.card
                }
            }

            Divider {
                width: parent.width
            }

            RowLayout {
                id: footerRow
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.leftMargin: Theme.s6
                anchors.rightMargin: Theme.s6
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.s3

                RowLayout {
                    id: destructive
                    visible: children.length > 0
                }

                RowLayout {
                    id: note
                    Layout.fillWidth: true
                    spacing: Theme.s2
                }

                RowLayout {
                    id: buttons
                    spacing: Theme.s2
                }
            }
        }
    }

    Item {
        id: tail
        activeFocusOnTab: true
        Accessible.ignored: true
        onActiveFocusChanged: if (activeFocus) head.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    }

    ParallelAnimation {
        id: entrance

        NumberAnimation {
            target: scrim
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.slow
            easing.type: Easing.OutCubic
        }
        NumberAnimation {
            target: panel
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.slow
            easing.type: Easing.OutCubic
        }
        NumberAnimation {
            target: panel
            property: "rise"
            from: 12
            to: 0
            duration: Theme.slow
            easing.type: Easing.OutCubic
        }
    }
}
