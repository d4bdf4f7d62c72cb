#include "ui/FolderNames.h"

#include "platform/FileNames.h"

#include <QCoreApplication>

namespace quillon {

bool canBeKept(const std::string& path, Toasts& toasts) {
    if (isValidUtf8(path))
        return true;
    toasts.show(QCoreApplication::translate(
        "FolderNames", "The name of this folder isn’t valid UTF-8, so Quillon can’t use it."));
    return false;
}

} // namespace quillon
