#pragma once

#include "model/WatchedFolder.h"

#include <QString>

#include <vector>

namespace quillon {

/// How a folder's tile looks: a tint of the palette, and the name of an icon.
struct FolderLook {
    int tint = 0;
    QString symbol = QStringLiteral("folder");

    bool operator==(const FolderLook&) const = default;
};

inline constexpr int folderTints = 8;

/// The folder's own choices; without a colour, or with one that isn't there, the tint of its place
/// in the list.
[[nodiscard]] FolderLook lookOf(const WatchedFolder& folder, std::size_t position);

/// The same of an element of the list.
[[nodiscard]] inline FolderLook lookOf(const WatchedFolder& folder,
                                       const std::vector<WatchedFolder>& list) {
    return lookOf(folder, std::size_t(&folder - list.data()));
}

} // namespace quillon
