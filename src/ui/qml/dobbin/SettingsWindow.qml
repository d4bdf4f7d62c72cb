import QtQuick
import QtQuick.Window
import Quillon

/// The settings, in a window of their own.
Window {
    id: window

    /// Where nothing can be seen through a window.
    property bool isSquare: false

    width: 760
    height: Math.min(640, Screen.desktopAvailableHeight)
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    title: qsTr("Settings")
    color: "transparent"
    flags: Qt.Window | Qt.FramelessWindowHint
    onVisibleChanged: App.settings.isShown = visible
    onActiveChanged: if (active && !tabs.activeFocus && !page.activeFocus) tabs.forceActiveFocus()

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Connections {
        target: App.settings
        function onOpenRequested() {
            window.show();
            window.raise();
            window.requestActivate();
        }
        function onCloseRequested() {
            window.close();
        }
    }

    Shortcut {
        sequence: "Ctrl+W"
        onActivated: window.close()
    }

    Shortcut {
        sequences: [StandardKey.Quit]
        onActivated: Qt.quit()
    }

    FocusGuard {}

    Rectangle {
        anchors.fill: parent
        radius: window.isSquare ? 0 : Theme.rCard
        color: Theme.bg
        Keys.onEscapePressed: window.close()

        RoundedSide {
            id: side
            width: 190
            height: parent.height
            anchors.left: parent.left
            roundEnd: false
            radius: parent.radius
            color: Theme.sidebar

            Divider {
                anchors.right: parent.right
                width: 1
                height: parent.height
                vertical: true
            }

            Label {
                anchors.left: parent.left
                anchors.leftMargin: Theme.s5
                y: 28 - height / 2
                text: qsTr("Settings")
                style: Theme.heading
                Accessible.role: Accessible.Heading
            }

            FocusScope {
                id: tabs
                focus: true
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.leftMargin: 10
                anchors.rightMargin: 10
                y: 55
                height: list.height

                Column {
                    id: list
                    width: parent.width

                    SettingsTab {
                        id: generalTab
                        focus: App.settings.page !== "dobbin"
                        KeyNavigation.down: dobbinTab
                        text: qsTr("General")
                        iconName: "configure"
                        checked: App.settings.page !== "dobbin"
                        onClicked: App.settings.page = "general"
                    }

                    SettingsTab {
                        id: dobbinTab
                        focus: App.settings.page === "dobbin"
                        KeyNavigation.up: generalTab
                        text: qsTr("Dobbin")
                        glyph: "horseshoe"
                        checked: App.settings.page === "dobbin"
                        onClicked: App.settings.page = "dobbin"
                    }
                }
            }

            Label {
                anchors.left: parent.left
                anchors.leftMargin: Theme.s5
                anchors.bottom: parent.bottom
                anchors.bottomMargin: Theme.s4
                text: App.settings.version
                style: Theme.caption
                color: Theme.text2
            }
        }

        MouseArea {
            width: parent.width
            height: 52
            onPressed: window.startSystemMove()
        }

        Label {
            anchors.left: side.right
            anchors.leftMargin: 28
            y: 28 - height / 2
            text: App.settings.page === "dobbin" ? qsTr("Dobbin") : qsTr("General")
            style: Theme.sheetTitle
            Accessible.role: Accessible.Heading
        }

        IconButton {
            anchors.right: parent.right
            anchors.rightMargin: Theme.s4
            y: 15
            kind: "quiet"
            radius: 13
            fillColor: Theme.hover
            glyph: "cross"
            iconSize: 12
            label: qsTr("Close")
            shortcutText: qsTr("Esc")
            onClicked: window.close()
        }

        Flickable {
            id: flick
            anchors.left: side.right
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.topMargin: 56
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 2
            contentWidth: width
            contentHeight: page.height + 4 + Theme.s2
            clip: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            // The page may grow above what has the focus.
            onContentHeightChanged: Qt.callLater(revealFocus.show)

            Loader {
                id: page
                y: 4
                anchors.left: parent.left
                anchors.leftMargin: 28
                width: flick.width - 56
                active: window.visible
                sourceComponent: App.settings.page === "dobbin" ? dobbin : general
                onLoaded: flick.contentY = 0
            }
        }

        RevealFocus {
            id: revealFocus
            view: flick
        }

        ScrollBar {
            flickable: flick
        }

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: "transparent"
            border.width: 1
            border.color: Theme.windowOutline
        }
    }

    Component {
        id: general
        SettingsGeneral {}
    }

    Component {
        id: dobbin
        SettingsDobbin {}
    }
}
