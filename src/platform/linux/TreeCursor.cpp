#include "platform/linux/TreeCursor.h"

#include "platform/FileNames.h"
#include "platform/linux/FolderReader.h"

#include <fcntl.h>

namespace quillon {

TreeCursor::TreeCursor(int folder, std::string root) : folder_(folder), root_(std::move(root)) {}

Expected<TreeCursor::Place> TreeCursor::find(const std::string& path) {
    if (path.empty()) {
        return Place{folder_, root_};
    }
    std::string parent(parentPath(path));
    if (!open_.isOpen() || parent != openPath_) {
        Expected<Descriptor> opened = openFolderBelow(folder_, joinPath(root_, parent), O_PATH);
        if (!opened) {
            return std::unexpected(opened.error());
        }
        open_ = std::move(*opened);
        openPath_ = std::move(parent);
    }
    return Place{open_.get(), std::string(lastComponent(path))};
}

} // namespace quillon
