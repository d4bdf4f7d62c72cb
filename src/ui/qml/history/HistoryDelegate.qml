import QtQuick
import Quillon

/// A row of the history on its piece of the day's card.
FocusScope {
    id: delegate

    required property int index
    required property string key
    required property string entryId
    required property bool isBatch
    required property bool isInBatch
    required property bool isOpen
    required property bool isFirst
    required property bool isLast
    required property string title
    required property string kind
    required property string secondLine
    required property string timeText
    required property string spokenTime
    required property string folderName
    required property int tint
    required property bool canReveal
    required property bool canUndo
    required property bool isError
    required property bool isUndoing
    required property double progress

    signal pressedByHand(int index)
    signal leaveAsked

    implicitHeight: Theme.rowActivity

    // It waits for another entry: till then nobody is told of it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    /// A view that moves on gives the focus without a reason, so that none would be shown.
    function takeFocusByKey() {
        forceActiveFocus(Qt.TabFocusReason);
        const part = isBatch ? head.item : row;
        part.focusReason = Qt.TabFocusReason;
    }

    TapHandler {
        onPressedChanged: {
            if (!pressed)
                return;
            delegate.pressedByHand(delegate.index);
            delegate.ListView.view.currentIndex = delegate.index;
            delegate.forceActiveFocus(Qt.MouseFocusReason);
        }
    }

    // The card of a day is as high as its rows: each shows its part of one, cut off where it goes on.
    Item {
        id: piece
        anchors.fill: parent
        anchors.leftMargin: Theme.s6 - 1
        anchors.rightMargin: Theme.s6 - 1
        clip: !(delegate.isFirst && delegate.isLast)

        Rectangle {
            readonly property int above: delegate.isFirst ? 0 : Theme.rCard
            readonly property int below: delegate.isLast ? 0 : Theme.rCard

            y: -above
            width: parent.width
            height: parent.height + above + below
            radius: Theme.rCard
            color: delegate.isBatch ? Theme.sunken : Theme.card
            border.width: 1
            border.color: Theme.line
        }

        Divider {
            visible: !delegate.isLast
            width: parent.width
            anchors.bottom: parent.bottom
        }
    }

    ActivityRow {
        id: row
        anchors.fill: piece
        visible: !delegate.isBatch
        focus: !delegate.isBatch
        isTabStop: !delegate.isBatch && delegate.ListView.isCurrentItem
        fileName: delegate.title
        kind: delegate.kind
        secondLine: delegate.secondLine
        timeText: delegate.timeText
        spokenTime: delegate.spokenTime
        folderName: delegate.folderName
        folderColor: delegate.tint < 0 ? Theme.text3 : Theme.tint(delegate.tint)
        canReveal: delegate.canReveal
        canUndo: delegate.canUndo
        undoing: delegate.isUndoing || App.entries.undoing.includes(delegate.entryId)
        isError: delegate.isError
        onRevealAsked: App.entries.reveal(delegate.entryId)
        onUndoAsked: App.entries.undo(delegate.entryId)
        Keys.onLeftPressed: event => event.accepted = leave(!mirrored)
        Keys.onRightPressed: event => event.accepted = leave(mirrored)

        function leave(isOutwards) {
            if (isOutwards && delegate.isInBatch)
                delegate.leaveAsked();
            return isOutwards && delegate.isInBatch;
        }
    }

    Loader {
        id: head
        anchors.fill: piece
        active: delegate.isBatch
        focus: delegate.isBatch
        sourceComponent: BatchRow {
            focus: true
            isTabStop: delegate.ListView.isCurrentItem
            title: delegate.title
            secondLine: delegate.secondLine
            timeText: delegate.timeText
            spokenTime: delegate.spokenTime
            canUndo: delegate.canUndo
            isOpen: delegate.isOpen
            isUndoing: delegate.isUndoing
            progress: delegate.progress
            onOpenAsked: open => App.history.setOpen(delegate.key, open)
            onUndoAsked: App.history.undoBatch(delegate.key)
            onStopAsked: App.history.stopUndo(delegate.key)
        }
    }
}
