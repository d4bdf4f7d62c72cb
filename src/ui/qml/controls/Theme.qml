pragma Singleton

import QtQuick

QtObject {
    readonly property color bg: "#FAFAF8"
}
