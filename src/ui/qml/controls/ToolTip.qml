import QtQuick
import QtQuick.Templates as T

T.ToolTip {
    id: tip

    property string shortcutText

    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: parent ? parent.height + 6 : 0
    margins: 6
    padding: 5
    leftPadding: 9
    rightPadding: 9
    delay: Theme.tipDelay
    implicitWidth: Math.min(320, contentItem.implicitWidth + leftPadding + rightPadding)
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent

    contentItem: Row {
        spacing: 7

        Words {
            width: Math.min(implicitWidth, 302 - (hint.visible ? hint.width + 7 : 0))
            text: tip.text
            style: Theme.caption
            color: Theme.onToast
            wrapMode: Text.Wrap
        }

        Words {
            id: hint
            visible: text !== ""
            text: tip.shortcutText
            style: Theme.caption
            color: Theme.onToast
            opacity: 0.7
        }
    }

    background: Rectangle {
        radius: Theme.rTile
        color: Theme.toast
    }
}
