import QtQuick
import QtQuick.Templates as T

T.MenuSeparator {
    padding: 5
    leftPadding: 8
    rightPadding: 8
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: visible ? 11 : 0

    contentItem: Divider {}
}
