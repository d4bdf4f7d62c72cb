import QtQuick
import Quillon

/// What came of a clean-up, and what may follow it.
Item {
    id: outcome

    Rectangle {
        id: mark
        anchors.horizontalCenter: parent.horizontalCenter
        y: 30
        width: 56
        height: 56
        radius: 28
        color: App.cleanup.hasFiled ? Theme.okSoft : Theme.hover
        Accessible.ignored: true

        Symbol {
            anchors.centerIn: parent
            glyph: App.cleanup.hasFiled ? "tick" : ""
            iconName: App.cleanup.hasFiled ? "" : "edit-clear-all"
            size: 28
            color: App.cleanup.hasFiled ? Theme.ok : Theme.text2
        }
    }

    Label {
        id: title
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: mark.bottom
        anchors.topMargin: 14
        width: Math.min(implicitWidth, parent.width - 2 * Theme.s8)
        text: App.cleanup.resultTitle
        style: Theme.title
        Accessible.role: Accessible.Heading
    }

    Label {
        id: sentence
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: title.bottom
        anchors.topMargin: 2
        width: Math.min(implicitWidth, parent.width - 2 * Theme.s8)
        text: App.cleanup.resultText
        color: Theme.text2
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.AlertMessage
    }

    Card {
        id: card
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.s8
        anchors.rightMargin: Theme.s8
        anchors.top: sentence.bottom
        anchors.topMargin: Theme.s5
        visible: rows.count > 0
        height: Math.min(rows.contentHeight + 2, keeping.y - y - 14)

        ListView {
            id: rows
            anchors.fill: parent
            anchors.margins: 1
            clip: true
            model: App.cleanup.resultRows
            boundsBehavior: Flickable.StopAtBounds
            activeFocusOnTab: interactive
            interactive: contentHeight > height
            Accessible.role: Accessible.List
            Accessible.name: qsTr("What was done")
            Keys.onUpPressed: contentY = Math.max(0, contentY - Theme.rowFile)
            Keys.onDownPressed: contentY = Math.max(0, Math.min(contentHeight - height, contentY + Theme.rowFile))
            delegate: CleanupOutcomeRow {
                width: ListView.view.width
                isLast: index === ListView.view.count - 1
            }

            FocusRing {
                parent: card
                shown: rows.activeFocus
                targetRadius: card.radius
            }
        }

        ScrollBar {
            flickable: rows
        }
    }

    Rectangle {
        id: keeping
        visible: App.cleanup.hasFiled
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.s8
        anchors.rightMargin: Theme.s8
        y: Math.min(parent.height - height - Theme.s4, rows.count > 0 ? card.y + rows.contentHeight + 2 + 14 : card.y)
        height: Math.max(words.implicitHeight + 28, Theme.scaled(60))
        radius: Theme.rCard
        color: Theme.accentSoft
        border.width: Theme.isHighContrast ? 1 : 0
        border.color: Theme.line

        Icon {
            anchors.left: parent.left
            anchors.leftMargin: 14
            y: 16
            name: "view-refresh"
            color: Theme.accentOnSoft
        }

        Column {
            id: words
            anchors.left: parent.left
            anchors.leftMargin: 44
            anchors.right: App.cleanup.canKeep ? keepButton.left : App.cleanup.hasAdded ? badge.left : parent.right
            anchors.rightMargin: Theme.s3
            y: 14

            Label {
                width: parent.width
                text: qsTr("Want %1 to stay this way?").arg(App.cleanup.folderName)
                style: Theme.bodyStrong
                wrapMode: Text.Wrap
            }

            Label {
                width: parent.width
                text: App.cleanup.keepText
                style: Theme.caption
                color: Theme.text2
                wrapMode: Text.Wrap
            }
        }

        Button {
            id: keepButton
            anchors.right: parent.right
            anchors.rightMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            visible: App.cleanup.canKeep
            text: qsTr("Keep it tidy")
            onClicked: App.cleanup.keep()
        }

        Badge {
            id: badge
            anchors.right: parent.right
            anchors.rightMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            visible: App.cleanup.hasAdded
            kind: "ok"
            glyph: "tick"
            text: qsTr("Added")
        }
    }
}
