import QtQuick
import Quillon

Rectangle {
    color: Theme.bg
}
