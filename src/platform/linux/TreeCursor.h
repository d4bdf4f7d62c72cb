#pragma once

#include "platform/Error.h"
#include "platform/linux/FolderTrail.h"

#include <string>

namespace quillon {

/// Finds entries of a tree by their path below its root. Never goes through a link. The root may be
/// a folder, a file or a link; its own path is "".
class TreeCursor {
public:
    struct Place {
        int folder; ///< owned by the cursor, valid until the next call
        std::string name;
    };

    /// `folder` is borrowed and holds the entry `root`.
    TreeCursor(int folder, std::string root);

    [[nodiscard]] Expected<Place> find(const std::string& path);

    [[nodiscard]] int folder() const { return folder_; }
    [[nodiscard]] const std::string& root() const { return root_; }

private:
    int folder_;
    std::string root_;
    FolderTrail trail_;
};

} // namespace quillon
