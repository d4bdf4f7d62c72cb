#include "ui/editor/Shortcuts.h"

#include "platform/FileNames.h"

#include <QDir>

namespace quillon {

QStringList shortcutNames(const Platform& platform) {
    const QDir folder(QString::fromStdString(joinPath(platform.folders.data, "shortcuts")));
    return folder.entryList(QDir::Files | QDir::Executable, QDir::Name | QDir::IgnoreCase);
}

} // namespace quillon
