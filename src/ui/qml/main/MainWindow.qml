import QtQuick
import Quillon

Window {
    width: 1040
    height: 700
    minimumWidth: 960
    minimumHeight: 640
    title: "Quillon"
    color: "transparent"
    flags: Qt.Window | Qt.FramelessWindowHint

    MainContent {
        anchors.fill: parent
    }
}
