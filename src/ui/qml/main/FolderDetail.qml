import QtQuick
import Quillon

/// The selected folder: its header and banner, and below them its rules and its activity, which
/// scroll together.
Item {
    id: detail

    property int startMargin: Theme.s6
    property int endMargin: Theme.s6
    /// Kept free at the end of the first row.
    property real roomForButtons: 0
    /// Of the window's corners.
    property int radius: 0
    property Item carried
    readonly property bool isCompact: width < 600
    readonly property alias header: header
    readonly property alias banner: banner
    readonly property alias heading: heading
    readonly property alias rules: rules
    readonly property alias footer: footer
    readonly property Item activity: footer.activity

    function openTiming() {
        header.openTiming();
    }

    function openMenu() {
        header.openMenu();
    }

    function carryRule(x, y) {
        const place = rules.mapFromItem(carried.parent, x, y);
        rules.dragTo(place.x, place.y);
    }

    function dropRule(x, y) {
        carryRule(x, y);
        rules.dropRule();
    }

    function ruleGone() {
        rules.dragEnded();
    }

    DragArea {
        width: parent.width
        height: 60
    }

    FolderHeader {
        id: header
        anchors.left: parent.left
        anchors.leftMargin: detail.startMargin
        anchors.right: parent.right
        anchors.rightMargin: detail.endMargin
        roomForButtons: detail.roomForButtons
        isCompact: detail.isCompact
    }

    FolderBannerBar {
        id: banner
        anchors.top: header.bottom
        anchors.left: header.left
        anchors.right: header.right
    }

    // The heading and the activity scroll with the list, but are no part of it: the Tab key takes what
    // lies in a list in an order of its own.
    Item {
        id: body
        anchors.top: banner.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        clip: true

        RevealFocus {
            view: rules
            area: body
        }

        // Opaque, and short of the window's round corners and its outline: what lies beneath the list
        // need not be painted for every frame in which it scrolls.
        Rectangle {
            anchors.fill: parent
            anchors.rightMargin: detail.radius
            anchors.bottomMargin: detail.radius
            color: Theme.bg
        }

        RuleListHeader {
            id: heading
            y: (rules.headerItem ? rules.headerItem.y : 0) - rules.contentY
            z: 1
            width: parent.width
            startMargin: detail.startMargin
            endMargin: detail.endMargin
            isCompact: detail.isCompact
        }

        RuleList {
            id: rules
            anchors.fill: parent
            headingHeight: heading.height
            activityHeight: footer.height
            startMargin: detail.startMargin
            endMargin: detail.endMargin
            carried: detail.carried
            onFocusTurnedDown: heading.takeFocus()
        }

        RuleListFooter {
            id: footer
            y: (rules.footerItem ? rules.footerItem.y : 0) - rules.contentY
            z: 1
            width: parent.width
            startMargin: detail.startMargin
            endMargin: detail.endMargin
            isCompact: detail.isCompact
        }
    }
}
