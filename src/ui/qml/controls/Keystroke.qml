pragma Singleton

import QtQuick

/// What a key that was pressed asks for.
QtObject {
    /// Enter of either block, alone: with Ctrl it is the sheet's.
    function isEnter(event) {
        return (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && (event.modifiers & ~Qt.KeypadModifier) === 0;
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
