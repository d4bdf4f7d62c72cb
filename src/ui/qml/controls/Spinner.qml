import QtQuick

/// Something is under way; words always stand beside it.
Item {
    id: spinner

    property int size: 16
    property color color: Theme.accent
    property color trackColor: Theme.lineStrong

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    Glyph {
        name: "ring"
        size: spinner.size
        color: spinner.trackColor
    }

    Glyph {
        name: "quarter"
        size: spinner.size
        color: spinner.color
        visible: !Theme.reducesMotion

        RotationAnimator on rotation {
            running: spinner.visible && !Theme.reducesMotion
            loops: Animation.Infinite
            from: 0
            to: 360
            duration: Math.max(1, Theme.spin)
        }
    }
}
