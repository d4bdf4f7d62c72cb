#include "ui/editor/Shortcuts.h"

#include "platform/FileNames.h"

#include <QDir>

namespace quillon {

QString shortcutsFolder(const Platform& platform) {
    return QString::fromStdString(joinPath(platform.folders.data, "shortcuts"));
}

QStringList shortcutNames(const Platform& platform) {
    const QDir folder(shortcutsFolder(platform));
    return folder.entryList(QDir::Files | QDir::Executable, QDir::Name | QDir::IgnoreCase);
}

} // namespace quillon
