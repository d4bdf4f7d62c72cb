#include "ui/folders/FolderStyles.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <QVariantMap>

#include <array>
#include <utility>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FolderStyles)
};

struct SymbolName {
    const char* name;
    const char* label;
};

constexpr auto symbols = std::to_array<SymbolName>({
    {"folder", QT_TRANSLATE_NOOP("FolderStyles", "Folder")},
    {"folder-download", QT_TRANSLATE_NOOP("FolderStyles", "Downloads")},
    {"user-desktop", QT_TRANSLATE_NOOP("FolderStyles", "Desktop")},
    {"folder-documents", QT_TRANSLATE_NOOP("FolderStyles", "Documents")},
    {"folder-pictures", QT_TRANSLATE_NOOP("FolderStyles", "Pictures")},
    {"folder-music", QT_TRANSLATE_NOOP("FolderStyles", "Music")},
    {"folder-videos", QT_TRANSLATE_NOOP("FolderStyles", "Videos")},
    {"folder-cloud", QT_TRANSLATE_NOOP("FolderStyles", "Cloud")},
    {"folder-network", QT_TRANSLATE_NOOP("FolderStyles", "Network")},
    {"drive-harddisk", QT_TRANSLATE_NOOP("FolderStyles", "Disk")},
    {"mail-folder-inbox", QT_TRANSLATE_NOOP("FolderStyles", "Inbox")},
    {"document-scan", QT_TRANSLATE_NOOP("FolderStyles", "Scanner")},
    {"drive-removable-media", QT_TRANSLATE_NOOP("FolderStyles", "Memory card")},
});

} // namespace

QStringList tintNames() {
    return {Texts::tr("Sky"),  Texts::tr("Lagoon"), Texts::tr("Moss"), Texts::tr("Honey"),
            Texts::tr("Clay"), Texts::tr("Rose"),   Texts::tr("Plum"), Texts::tr("Slate")};
}

QVariantList folderSymbols() {
    QVariantList list;
    for (const SymbolName& symbol : symbols)
        list.append(QVariantMap{{u"name"_s, QString::fromUtf8(symbol.name)},
                                {u"label"_s, Texts::tr(symbol.label)}});
    return list;
}

QString suitingSymbol(const QString& path) {
    static constexpr auto places =
        std::to_array<std::pair<QStandardPaths::StandardLocation, const char*>>({
            {QStandardPaths::DownloadLocation, "folder-download"},
            {QStandardPaths::DesktopLocation, "user-desktop"},
            {QStandardPaths::DocumentsLocation, "folder-documents"},
            {QStandardPaths::PicturesLocation, "folder-pictures"},
            {QStandardPaths::MusicLocation, "folder-music"},
            {QStandardPaths::MoviesLocation, "folder-videos"},
        });
    const QString home = QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
    for (const auto& [location, symbol] : places)
        if (path != home && path == QStandardPaths::writableLocation(location))
            return QString::fromUtf8(symbol);
    const bool isRemovable = path.startsWith(u"/media/"_s) || path.startsWith(u"/run/media/"_s);
    return isRemovable ? u"drive-removable-media"_s : u"folder"_s;
}

} // namespace quillon
