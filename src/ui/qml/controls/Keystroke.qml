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
}
