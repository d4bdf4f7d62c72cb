import QtQuick

Rectangle {
    property bool vertical: false

    implicitWidth: 1
    implicitHeight: 1
    color: Theme.line
    Accessible.role: Accessible.Separator
    Accessible.ignored: true
}
