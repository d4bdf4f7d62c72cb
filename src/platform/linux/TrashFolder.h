#pragma once

#include "platform/Error.h"
#include "platform/linux/Descriptor.h"

#include <string>

namespace quillon {

/// One trash, its two folders held open: what was thrown away, and the record of each.
class TrashFolder {
public:
    /// The user's own trash at `path`, made where it is missing.
    [[nodiscard]] static Expected<TrashFolder> openHome(const std::string& path);

    /// The user's trash at the top folder of another file system: inside of a shared ".Trash" that
    /// can be trusted, otherwise ".Trash-UID". `unsupported` when there is none and none can be
    /// made.
    [[nodiscard]] static Expected<TrashFolder> openTop(const std::string& top);

    /// Moves the entry `name` of `folder` in here and returns where it lies now. `recordedPath`
    /// goes into its record. Leaves no record when it fails.
    [[nodiscard]] Expected<std::string> put(int folder, const std::string& name,
                                            const std::string& recordedPath);

private:
    TrashFolder(std::string path, Descriptor files, Descriptor records)
        : path_(std::move(path)), files_(std::move(files)), records_(std::move(records)) {}

    [[nodiscard]] static Expected<TrashFolder> open(const std::string& path);
    [[nodiscard]] int claim(int folder, const std::string& name, const std::string& trashedName,
                            const std::string& record);

    std::string path_;
    Descriptor files_;
    Descriptor records_;
};

/// The record's path of something that lies in a trash; empty when `trashedPath` lies in none.
[[nodiscard]] std::string trashRecordOf(const std::string& trashedPath);

} // namespace quillon
