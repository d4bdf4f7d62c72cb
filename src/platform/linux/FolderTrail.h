#pragma once

#include "platform/Error.h"
#include "platform/linux/Descriptor.h"

#include <deque>
#include <string>

namespace quillon {

/// Finds folders below one folder, keeping the last way down open: in a walk from the top, the next
/// folder is mostly near the last one. Never goes through a link and keeps few descriptors.
class FolderTrail {
public:
    /// `base` is borrowed.
    explicit FolderTrail(int base) : base_(base) {}

    /// The folder `path` below the base, the base itself for "". Owned by the trail and valid until
    /// the next call.
    [[nodiscard]] Expected<int> find(const std::string& path);

    /// Opens it for reading its names.
    [[nodiscard]] Expected<Descriptor> openForReading(const std::string& path);

private:
    struct Step {
        std::string path;
        Descriptor folder;
    };

    int base_;
    std::deque<Step> steps_; ///< each inside of the one before
};

} // namespace quillon
