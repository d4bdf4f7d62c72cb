#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace quillon::testing {

/// Everything about a file that a person would miss.
struct DiskItem {
    mode_t mode = 0;           ///< type and permissions
    std::string content = {};  ///< bytes, or a link's target
    std::int64_t modified = 0; ///< nanoseconds
    std::map<std::string, std::string> attributes = {};
    std::uint64_t device = 0;
    std::uint64_t inode = 0;

    [[nodiscard]] bool isFolder() const { return S_ISDIR(mode); }
    [[nodiscard]] bool isLink() const { return S_ISLNK(mode); }
    [[nodiscard]] bool isSameFileAs(const DiskItem& other) const {
        return device == other.device && inode == other.inode;
    }
};

/// Every item below some folders by absolute path, the folders included.
using DiskState = std::map<std::string, DiskItem>;

/// One file, or a folder with all that is in it: items by path relative to it, "" being itself.
using DiskTree = std::map<std::string, DiskItem>;

[[nodiscard]] DiskState readDisk(const std::vector<std::string>& folders);
[[nodiscard]] DiskTree treeAt(const DiskState& disk, const std::string& path);

enum class Likeness {
    whole,    ///< contents, permissions, time and attributes
    contents, ///< where the file system can't hold the rest, and says so
};
[[nodiscard]] bool isTreeAt(const DiskState& disk, const std::string& path, const DiskTree& tree,
                            Likeness likeness);

[[nodiscard]] bool isSameItem(const DiskItem& left, const DiskItem& right, Likeness likeness);

/// Makes the item as it is described; inode and device aside. Folders that lead to it must exist.
void writeItem(const std::string& path, const DiskItem& item);
void removeTree(const std::string& path);

} // namespace quillon::testing
