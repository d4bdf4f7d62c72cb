import QtQuick
import Quillon

/// The rows of the preview.
FileList {
    id: list

    /// Where the columns begin.
    readonly property int fileColumn: 58
    readonly property int ruleColumn: 294
    readonly property int actionColumn: 477

    model: App.preview
    rowHeight: Theme.scaled(54)
    Accessible.name: qsTr("What would happen")

    delegate: PreviewRow {
        width: ListView.view.width
        implicitHeight: list.rowHeight
        fileColumn: list.fileColumn
        ruleColumn: list.ruleColumn
        actionColumn: list.actionColumn
        isLast: index === ListView.view.count - 1
        onClicked: list.go(index, Qt.MouseFocusReason)
    }
}
