import QtQuick
import Quillon

/// The keys of the main window.
Item {
    id: keys

    property Item sidebar
    property Item detail
    property Item chat
    readonly property bool hasFolder: enabled && App.page.hasFolder
    readonly property Item focused: Window.activeFocusItem
    readonly property bool editsText: focused && focused.cursorPosition !== undefined

    /// The areas in reading order: what lies in each, and what of it takes the focus.
    function areas() {
        const all = [
            {
                holders: [sidebar],
                taker: sidebar.list
            }
        ];
        if (App.page.hasFolder)
            all.push({
                holders: [detail.header, detail.banner],
                taker: detail.header
            }, {
                holders: [detail.heading, detail.rules],
                taker: detail.rules
            }, {
                holders: [detail.footer],
                taker: detail.activity
            });
        if (chat)
            all.push({
                holders: [chat],
                taker: chat
            });
        return all;
    }

    function hasFocus(area) {
        for (let item = focused; item; item = item.parent)
            if (area.holders.includes(item))
                return true;
        return false;
    }

    function goToArea(step) {
        const all = areas();
        let at = all.findIndex(hasFocus);
        for (let i = 0; i < all.length; ++i) {
            at = (at + step + all.length) % all.length;
            if (all[at].taker.takeFocus())
                return;
        }
    }

    Shortcut {
        sequence: "Ctrl+Shift+N"
        enabled: keys.enabled
        onActivated: App.folders.chooseNew()
    }

    Repeater {
        model: 9

        Item {
            required property int index

            Shortcut {
                sequence: "Ctrl+" + (index + 1)
                enabled: keys.enabled
                onActivated: App.folders.selectAt(index)
            }
        }
    }

    Shortcut {
        sequence: "Ctrl+N"
        enabled: keys.hasFolder
        onActivated: App.editor.create(App.page.folderID)
    }

    Shortcut {
        sequence: "Ctrl+Shift+P"
        enabled: keys.hasFolder
        onActivated: App.presets.open(App.page.folderID)
    }

    Shortcut {
        sequence: "Ctrl+P"
        enabled: keys.hasFolder && App.page.canRun
        onActivated: App.preview.open(App.page.folderID)
    }

    Shortcut {
        sequence: "Ctrl+R"
        autoRepeat: false
        enabled: keys.hasFolder
        onActivated: App.page.run()
    }

    Shortcut {
        sequence: "Ctrl+Shift+R"
        autoRepeat: false
        enabled: keys.hasFolder
        onActivated: App.page.runAll()
    }

    Shortcut {
        sequence: "Ctrl+K"
        enabled: keys.hasFolder && App.page.canRun
        onActivated: App.cleanup.open(App.page.folderID)
    }

    Shortcut {
        sequence: "Ctrl+T"
        enabled: keys.hasFolder
        onActivated: keys.detail.openTiming()
    }

    Shortcut {
        sequence: "Ctrl+H"
        enabled: keys.enabled
        onActivated: App.history.open("")
    }

    Shortcut {
        sequence: "Ctrl+J"
        autoRepeat: false
        enabled: keys.enabled
        onActivated: App.chat.toggle()
    }

    Shortcut {
        sequence: "Ctrl+."
        autoRepeat: false
        enabled: keys.enabled
        onActivated: App.folders.togglePaused()
    }

    Shortcut {
        sequence: "Ctrl+,"
        onActivated: App.settings.open()
    }

    Shortcut {
        sequences: ["Alt+Return", "Alt+Enter"]
        enabled: keys.hasFolder
        onActivated: keys.detail.openMenu()
    }

    Shortcut {
        sequences: [StandardKey.Undo]
        autoRepeat: false
        enabled: keys.hasFolder && !keys.editsText
        // A repetition that passes for a press, too, would put back one file after the other.
        onActivated: {
            if (!Keystroke.follows({
                key: Qt.Key_Z
            }))
                App.entries.undo(App.page.newestUndoable());
        }
    }

    Shortcut {
        sequence: "Ctrl+W"
        autoRepeat: false
        onActivated: keys.Window.window.close()
    }

    Shortcut {
        sequence: "F6"
        enabled: keys.enabled
        onActivated: keys.goToArea(1)
    }

    Shortcut {
        sequence: "Shift+F6"
        enabled: keys.enabled
        onActivated: keys.goToArea(-1)
    }

    Shortcut {
        sequence: "Escape"
        enabled: keys.enabled && App.chat.isOpen
        onActivated: App.chat.isOpen = false
    }
}
