import QtQuick
import Quillon

/// The turns of the conversation, kept at the newest unless somebody has scrolled away from it. One
/// stop of the Tab key, and the buttons of the current turn.
ListView {
    id: list

    property bool sticks: true
    /// By its scroll bar.
    property bool isDragged: false
    readonly property real end: Math.max(originY, originY + contentHeight + bottomMargin - height)

    model: App.chat.turns
    clip: true
    reuseItems: false
    cacheBuffer: 20000
    boundsBehavior: Flickable.StopAtBounds
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    activeFocusOnTab: false
    bottomMargin: Theme.s2
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Conversation with Dobbin")

    onContentYChanged: if (moving || isDragged) sticks = contentY >= end - 2
    onCountChanged: {
        currentIndex = count - 1;
        follow();
    }
    onContentHeightChanged: follow()
    onHeightChanged: follow()
    Component.onCompleted: currentIndex = count - 1

    function showNewest() {
        sticks = true;
        follow();
    }

    function follow() {
        if (sticks)
            Qt.callLater(toEnd);
    }

    function toEnd() {
        if (sticks)
            contentY = end;
    }

    function go(index) {
        if (count === 0)
            return;
        currentIndex = Math.max(0, Math.min(count - 1, index));
        positionViewAtIndex(currentIndex, ListView.Contain);
        sticks = currentIndex === count - 1;
        currentItem.forceActiveFocus(Qt.TabFocusReason);
    }

    Keys.onPressed: event => {
        const target = Keystroke.inList(event, currentIndex, count);
        event.accepted = target !== undefined;
        if (event.accepted)
            go(target);
    }

    section.property: "day"
    section.delegate: Item {
        required property string section
        width: ListView.view ? ListView.view.width : 0
        height: Theme.caption.lineHeight + 2 * Theme.s3

        Label {
            anchors.centerIn: parent
            text: section
            style: Theme.caption
            color: Theme.text3
            Accessible.role: Accessible.Heading
        }
    }

    delegate: ChatTurn {
        width: ListView.view ? ListView.view.width : 0
    }

    footer: Item {
        width: ListView.view ? ListView.view.width : 0
        height: App.chat.isThinking ? thinking.height + Theme.s4 : 0

        Row {
            id: thinking
            visible: App.chat.isThinking
            anchors.left: parent.left
            anchors.leftMargin: 21
            height: Theme.body.lineHeight
            spacing: Theme.s2 + 2

            Glyph {
                anchors.verticalCenter: parent.verticalCenter
                name: "horseshoe"
                size: 14
                color: Theme.dobbin
            }

            ThinkingDots {
                anchors.verticalCenter: parent.verticalCenter
            }

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Dobbin is thinking")
                style: Theme.caption
                color: Theme.text2
            }
        }
    }
}
