import QtQuick
import Quillon

/// A setting that is on or off.
SettingsRow {
    id: row

    property bool on: false

    signal switched(bool on)

    Switch {
        anchors.verticalCenter: parent.verticalCenter
        label: row.title
        checked: row.on
        Accessible.description: row.caption
        onToggled: {
            row.switched(checked);
            // What could not be set stays as it was.
            checked = Qt.binding(() => row.on);
        }
    }
}
