import QtQuick

Transition {
    NumberAnimation {
        property: "opacity"
        from: 0
        to: 1
        duration: Theme.base
        easing.type: Easing.OutCubic
    }
}
