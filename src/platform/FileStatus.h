#pragma once

#include "platform/Clock.h"

#include <cstdint>
#include <optional>

namespace quillon {

/// `special` is a pipe, socket or device: never touched.
enum class FileType : std::uint8_t { regular, directory, symbolicLink, special };

/// What one look at a file tells, links not followed.
struct FileStatus {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0; ///< bytes; 0 for a folder
    Timestamp modified;
    Timestamp accessed;
    Timestamp changed;                ///< last change of contents or metadata
    std::optional<Timestamp> created; ///< birth time, absent where the file system keeps none
    FileType type = FileType::regular;

    bool operator==(const FileStatus&) const = default;

    /// Two names of one file.
    [[nodiscard]] bool isSameFileAs(const FileStatus& other) const {
        return device == other.device && inode == other.inode;
    }
};

} // namespace quillon
