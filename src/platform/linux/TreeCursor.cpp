#include "platform/linux/TreeCursor.h"

#include "platform/FileNames.h"

namespace quillon {

TreeCursor::TreeCursor(int folder, std::string root)
    : folder_(folder), root_(std::move(root)), trail_(folder) {}

Expected<TreeCursor::Place> TreeCursor::find(const std::string& path) {
    if (path.empty()) {
        return Place{folder_, root_};
    }
    const std::string whole = joinPath(root_, path);
    const Expected<int> parent = trail_.find(std::string(parentPath(whole)));
    if (!parent) {
        return std::unexpected(parent.error());
    }
    return Place{*parent, std::string(lastComponent(whole))};
}

} // namespace quillon
