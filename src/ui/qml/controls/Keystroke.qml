pragma Singleton

import QtQuick

/// What a key that was pressed asks for.
QtObject {
    property int lastKey: 0
    property real lastTime: 0

    /// Whether a key is held since it was pressed before. Where the desktop tells of a repetition as of
    /// another release and press, these follow each other sooner than anybody's.
    function isHeld(event) {
        const isSoon = follows(event);
        return event.isAutoRepeat || isSoon;
    }

    /// To be asked of every release, too.
    function follows(event) {
        const now = Date.now();
        const isSoon = event.key === lastKey && now - lastTime < 50;
        lastKey = event.key;
        lastTime = now;
        return isSoon;
    }

    /// Enter of either block, alone: with Ctrl it is the sheet's.
    function isEnter(event) {
        return (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && (event.modifiers & ~Qt.KeypadModifier) === 0;
    }

    /// Enter presses a button as Space does, but no more often the longer it is held. One that is busy is
    /// pressed by neither.
    function press(event, button) {
        const isBusy = button.busy === true;
        event.accepted = isEnter(event) || isBusy && event.key === Qt.Key_Space;
        if (isEnter(event) && !isBusy && !event.isAutoRepeat)
            button.clicked();
    }

    function isMenu(event) {
        return event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && (event.modifiers & Qt.ShiftModifier) !== 0;
    }

    /// +1 or -1 for the keys of more and less, else 0.
    function step(event) {
        return event.text === "+" ? 1 : event.text === "-" || event.text === "−" ? -1 : 0;
    }

    /// Where arrows, Page Up and Down, Home and End lead in a list; undefined for other keys.
    function inList(event, index, count, page = 1) {
        return targetOf(event, {
            [Qt.Key_Up]: index - 1,
            [Qt.Key_Down]: index + 1,
            [Qt.Key_PageUp]: index - page,
            [Qt.Key_PageDown]: index + page,
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: count - 1
        });
    }

    /// The same for what stands side by side.
    function inRow(event, index, count, isMirrored) {
        const step = isMirrored ? -1 : 1;
        return targetOf(event, {
            [Qt.Key_Left]: index - step,
            [Qt.Key_Right]: index + step,
            [Qt.Key_Up]: index - 1,
            [Qt.Key_Down]: index + 1,
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: count - 1
        });
    }

    function targetOf(event, targets) {
        return event.modifiers === Qt.NoModifier || event.modifiers === Qt.KeypadModifier ? targets[event.key] : undefined;
    }
}
