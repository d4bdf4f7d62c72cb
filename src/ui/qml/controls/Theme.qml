pragma Singleton

import QtQuick

/// Every colour, size, type style and duration of the application. Light and dark, contrast, motion
/// and the text's size are the desktop's.
QtObject {
    id: theme

    readonly property QtObject desktop: typeof Desktop === "undefined" ? null : Desktop
    readonly property SystemPalette palette: SystemPalette {}
    readonly property bool isDark: desktop ? desktop.isDark : palette.window.hslLightness < palette.windowText.hslLightness
    readonly property bool isHighContrast: desktop ? desktop.isHighContrast : false
    readonly property bool reducesMotion: desktop ? desktop.reducesMotion : false

    readonly property color bg: isDark ? "#1D1F21" : "#FAFAF8"
    readonly property color sidebar: isDark ? "#17191A" : "#F1F1EE"
    readonly property color card: isDark ? "#26292B" : "#FFFFFF"
    readonly property color sunken: isDark ? "#212426" : "#F4F4F1"
    readonly property color hover: isDark ? "#2F3336" : "#ECEBE7"
    readonly property color selected: isDark ? "#2A2D30" : "#FFFFFF"
    readonly property color line: isHighContrast ? text2 : isDark ? "#34383B" : "#E4E3DE"
    readonly property color lineStrong: isHighContrast ? text2 : isDark ? "#4B5054" : "#CBCAC4"
    readonly property color scrim: isDark ? "#8C000000" : "#61181A1C"

    readonly property color text1: isDark ? "#F0F1F1" : "#1C1E20"
    readonly property color text2: isDark ? "#B5BABD" : "#54585C"
    readonly property color text3: isDark ? "#9AA0A4" : "#63676B"

    readonly property color accent: isDark ? "#55BCC5" : "#0E6A72"
    readonly property color accentHover: isDark ? "#6BCAD2" : "#0B5A61"
    readonly property color accentPressed: isDark ? "#45A7B0" : "#094B51"
    readonly property alias onAccent: inks.accent
    readonly property color accentSoft: isHighContrast ? card : isDark ? "#17393C" : "#DCECEC"
    readonly property color accentOnSoft: isDark ? "#9ADDE2" : "#0B5258"
    readonly property color dobbin: isDark ? "#E3B186" : "#8F5427"
    readonly property alias onDobbin: inks.dobbin
    readonly property color dobbinSoft: isHighContrast ? card : isDark ? "#30271F" : "#F8EFE6"
    readonly property color dobbinLine: isDark ? "#4A3A2C" : "#E9D7C5"
    readonly property color warn: isDark ? "#F0C674" : "#7A4F00"
    readonly property color warnIcon: isDark ? "#E0A93C" : "#A86C00"
    readonly property color warnSoft: isHighContrast ? card : isDark ? "#352B17" : "#FDF3DC"
    readonly property color warnLine: isDark ? "#51421F" : "#EFDDB2"
    readonly property color error: isDark ? "#F5A59E" : "#A8261F"
    readonly property color errorFill: isDark ? "#E8685E" : "#C4362E"
    readonly property alias onError: inks.error
    readonly property color errorSoft: isHighContrast ? card : isDark ? "#3A2220" : "#FCEBE9"
    readonly property color errorLine: isDark ? "#5A322E" : "#F2CFCB"
    readonly property color ok: isDark ? "#8FD3A3" : "#22683A"
    readonly property color okSoft: isHighContrast ? card : isDark ? "#1C3324" : "#E4F2E8"
    readonly property color toast: isDark ? "#3A3F43" : "#2A2D30"
    readonly property alias onToast: inks.toast
    readonly property color toastLink: isDark ? "#9ADDE2" : "#8FD6DC"
    readonly property color switchOff: isDark ? "#5D6468" : "#8D9196"
    readonly property color knob: "#FFFFFF"
    readonly property color knobOn: isDark ? "#0B2123" : "#FFFFFF"
    readonly property color tickOutline: isDark ? "#7A8186" : "#8A8E93"
    /// Around the chosen colours of a text field, and over a surface that is pressed.
    readonly property color focusGlow: Qt.rgba(accent.r, accent.g, accent.b, isHighContrast ? 1 : 0.28)
    readonly property color dobbinHover: Qt.darker(dobbin, 1.08)
    readonly property color dobbinPressed: Qt.darker(dobbin, 1.16)
    /// The line around the whole window.
    readonly property color windowOutline: isHighContrast ? text2 : isDark ? "#17FFFFFF" : "#1F1C1E20"

    /// What is written on the fills of those names. An object of its own, for QML takes what it is told
    /// of "onAccent" for a signal's handler.
    readonly property QtObject inksOnFills: QtObject {
        id: inks
        readonly property color accent: theme.isDark ? "#06282B" : "#FFFFFF"
        readonly property color dobbin: theme.isDark ? "#2B1A0C" : "#FFFFFF"
        readonly property color error: theme.isDark ? "#2B0A08" : "#FFFFFF"
        readonly property color toast: "#FFFFFF"
        readonly property color tint: "#FFFFFF"
    }

    readonly property var tints: isDark ? ["#4C86D2", "#2A928F", "#67933F", "#B27F1A", "#C96A43", "#C9587B", "#906CC8", "#73808C"]
                                        : ["#2F6DBE", "#127A78", "#4D7A31", "#9A6700", "#B4512B", "#B33E63", "#7651B0", "#56626E"]
    readonly property alias onTint: inks.tint
    /// Of a kind of file: text and fill, light and dark.
    readonly property var kinds: ({
        "image": ["#6A45A6", "#F0E9F8", "#C3A6EE", "#322A40"],
        "video": ["#235FA8", "#E3EDF8", "#92BDF2", "#22303F"],
        "audio": ["#A03056", "#FAE7EC", "#F0A0B8", "#3C2830"],
        "document": ["#0F6664", "#DFF0EE", "#82CFCB", "#1E3534"],
        "pdf": ["#A1441F", "#FAE9E1", "#F2AC8E", "#3D2B24"],
        "archive": ["#7A5200", "#F8EDD3", "#E4BC6A", "#383020"],
        "code": ["#426A29", "#E7F0DE", "#A9CE8C", "#2A3524"],
        "folder": ["#4C5862", "#E9ECEE", "#B4C0CA", "#2E3439"],
        "other": ["#4C5862", "#E9ECEE", "#B4C0CA", "#2E3439"]
    })
    readonly property var tags: ({
        "red": "#D9453C",
        "orange": "#DD7A22",
        "yellow": "#CFA70C",
        "green": "#3A9A51",
        "blue": "#3578CC",
        "purple": "#8A55C4",
        "gray": "#82878C"
    })

    /// A folder's colour; any index has one.
    function tint(index) {
        const count = tints.length;
        return tints[((index % count) + count) % count];
    }

    function kindText(kind) {
        return (kinds[kind] || kinds.other)[isDark ? 2 : 0];
    }

    function kindFill(kind) {
        return isHighContrast ? card : (kinds[kind] || kinds.other)[isDark ? 3 : 1];
    }

    function tagColor(word) {
        return tags[word] || text3;
    }

    readonly property string fontFamily: desktop && desktop.fontFamily ? desktop.fontFamily : "Inter"
    readonly property string monospacedFamily: "monospace"
    /// What the sizes below are multiplied with, for they are those of a body of 13 pixels.
    readonly property real textScale: (desktop && desktop.bodySize > 0 ? desktop.bodySize : 13) / 13

    readonly property var hero: style(32, 40, Font.DemiBold, -0.5)
    readonly property var display: style(26, 32, Font.DemiBold, -0.4)
    readonly property var title: style(20, 26, Font.DemiBold, -0.2)
    readonly property var sheetTitle: style(17, 22, Font.DemiBold, -0.1)
    readonly property var heading: style(15, 20, Font.DemiBold, -0.1)
    readonly property var bodyStrong: style(13, 18, Font.DemiBold, 0)
    readonly property var bodyMedium: style(13, 18, Font.Medium, 0)
    readonly property var body: style(13, 18, Font.Normal, 0)
    readonly property var lead: style(14, 21, Font.Normal, 0)
    readonly property var caption: style(12, 16, Font.Normal, 0)
    readonly property var captionMedium: style(12, 16, Font.Medium, 0)
    readonly property var captionStrong: style(12, 16, Font.DemiBold, 0)
    readonly property var micro: style(11, 14, Font.Medium, 0)
    readonly property var microPlain: style(11, 14, Font.Normal, 0)
    readonly property var microStrong: style(11, 14, Font.DemiBold, 0)

    function style(size, lineHeight, weight, tracking) {
        return {
            size: Math.max(11, Math.round(size * textScale)),
            lineHeight: Math.round(lineHeight * textScale),
            weight: weight,
            tracking: tracking
        };
    }

    /// A length that grows with the text that it has to hold.
    function scaled(length) {
        return textScale > 1 ? Math.round(length * textScale) : length;
    }

    readonly property int s1: 4
    readonly property int s2: 8
    readonly property int s3: 12
    readonly property int s4: 16
    readonly property int s5: 20
    readonly property int s6: 24
    readonly property int s8: 32
    readonly property int s12: 48
    readonly property int s16: 64

    readonly property int control: scaled(32)
    readonly property int controlInRow: scaled(30)
    readonly property int controlSmall: scaled(26)
    readonly property int controlLarge: scaled(36)
    readonly property int smallestHit: 32
    readonly property int rowSidebar: scaled(46)
    readonly property int rowActivity: scaled(50)
    readonly property int rowFile: scaled(44)
    readonly property int rowMenu: scaled(30)
    readonly property int rowPopover: scaled(40)

    readonly property int rSmall: 6
    readonly property int rTile: 7
    readonly property int rControl: 8
    readonly property int rRow: 9
    readonly property int rBanner: 10
    readonly property int rCard: 12
    readonly property int rSheet: 14
    readonly property int rTick: 5

    readonly property int fast: moving(90)
    readonly property int base: moving(160)
    readonly property int slow: moving(240)
    readonly property int reorder: moving(200)
    readonly property int toastIn: moving(200)
    readonly property int toastOut: moving(160)
    readonly property int spin: moving(900)
    readonly property int think: moving(1200)
    readonly property int toastStay: 6000
    readonly property int toastStayWithAction: 10000
    readonly property int tipDelay: 600

    function moving(duration) {
        return reducesMotion ? 0 : duration;
    }

    /// What a colour becomes on a surface that is no longer to be pressed.
    function faded(color, beneath) {
        const part = disabledOpacity;
        const mixed = (one, other) => one * part + other * (1 - part);
        return Qt.rgba(mixed(color.r, beneath.r), mixed(color.g, beneath.g), mixed(color.b, beneath.b), 1);
    }

    readonly property int focusWidth: isHighContrast ? 3 : 2
    readonly property int focusGap: 2
    readonly property real disabledOpacity: 0.45
}
