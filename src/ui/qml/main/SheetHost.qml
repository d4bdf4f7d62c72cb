import QtQuick
import Quillon

/// The open sheet, over all that this fills. One that closes is gone at once, with what it held; only its
/// empty surface is still seen while it fades, and is in nobody's way.
Item {
    id: host

    readonly property var files: ({
            "RuleEditorSheet": "editor/RuleEditorSheet.qml",
            "PreviewSheet": "review/PreviewSheet.qml",
            "CleanupSheet": "review/CleanupSheet.qml",
            "PresetsSheet": "review/PresetsSheet.qml",
            "HistorySheet": "history/HistorySheet.qml"
        })
    readonly property string current: App.sheets.current
    readonly property Item panel: sheet.item ? sheet.item.panel : null
    readonly property rect place: panel ? Qt.rect(panel.x, panel.y, panel.width, panel.height) : Qt.rect(0, 0, 0, 0)
    /// Where the surface was while there was something on it.
    property rect lastPlace

    /// Whether it lies over a part of the item, or next to it.
    function reaches(item) {
        return panel !== null && place.y < item.y + item.height + Theme.s1 && place.x < item.x + item.width + Theme.s1 && place.x + place.width > item.x - Theme.s1;
    }

    onPlaceChanged: if (panel && App.sheets.current !== "") lastPlace = place
    onCurrentChanged: {
        if (current !== "") {
            farewell.stop();
            return;
        }
        // Gone, it keeps no focus for itself.
        sheet.focus = false;
        farewell.restart();
    }

    Loader {
        id: sheet
        anchors.fill: parent
        active: host.current !== ""
        source: active ? "qrc:/Quillon/" + host.files[host.current] : ""
    }

    Rectangle {
        id: scrim
        anchors.fill: parent
        visible: farewell.running
        color: Theme.scrim
    }

    SheetSurface {
        id: ghost
        visible: farewell.running
        x: host.lastPlace.x
        width: host.lastPlace.width
        height: host.lastPlace.height
        Accessible.ignored: true
    }

    ParallelAnimation {
        id: farewell

        NumberAnimation {
            targets: [scrim, ghost]
            property: "opacity"
            from: 1
            to: 0
            duration: Theme.base
            easing.type: Easing.OutCubic
        }
        NumberAnimation {
            target: ghost
            property: "y"
            from: host.lastPlace.y
            to: host.lastPlace.y + 12
            duration: Theme.base
            easing.type: Easing.OutCubic
        }
    }
}
