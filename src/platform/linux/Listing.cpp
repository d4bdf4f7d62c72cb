#include "platform/linux/Listing.h"

#include "platform/FileNames.h"
#include "platform/linux/FolderReader.h"
#include "platform/linux/FolderTrail.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/SystemStatus.h"

#include <bit>
#include <cerrno>
#include <cstring>
#include <fcntl.h>

namespace quillon {

namespace {

bool isSpecialType(unsigned char type) {
    return type == DT_FIFO || type == DT_SOCK || type == DT_CHR || type == DT_BLK;
}

class Walk {
public:
    Walk(int root, const ListOptions& options) : trail_(root), options_(options) {}

    [[nodiscard]] Expected<void> run() {
        std::string folder; // relative to the root
        for (bool isRoot = true; isRoot || !pending_.empty(); isRoot = false) {
            if (!isRoot) {
                folder = std::move(pending_.back());
                pending_.pop_back();
            }
            const Expected<void> read = readFolder(folder);
            if (isRoot && !read) {
                return read;
            }
        }
        return {};
    }

    [[nodiscard]] Listing take() { return std::move(listing_); }

private:
    [[nodiscard]] Expected<void> readFolder(const std::string& folder) {
        Expected<Descriptor> opened = trail_.openForReading(folder);
        if (!opened) {
            return std::unexpected(opened.error());
        }
        Expected<FolderReader> reader = FolderReader::open(std::move(*opened));
        if (!reader) {
            return std::unexpected(reader.error());
        }
        while (const dirent* const entry = reader->next()) {
            const int error = takeEntry(reader->folder(), folder, *entry);
            const bool isClosed =
                error == EACCES && ::faccessat(reader->folder(), ".", X_OK, AT_EACCESS) != 0;
            if (isClosed) {
                return systemFailure(error);
            }
        }
        return reader->error() == 0 ? Expected<void>{} : systemFailure(reader->error());
    }

    /// Returns the errno value of the look at the entry, 0 when it was not needed. An entry that
    /// can't be looked at (it has just gone) is left out.
    int takeEntry(int folder, const std::string& folderPath, const dirent& entry) {
        const std::string_view name = entry.d_name;
        if (name.front() == '.' || isSpecialType(entry.d_type)) {
            return 0;
        }
        if (!isValidUtf8(name)) {
            ++listing_.skippedNames;
            return 0;
        }
        if (options_.recursive && entry.d_type == DT_DIR) {
            enter(folderPath, name);
            return 0;
        }
        struct statx found;
        if (const int error = lookAt(folder, entry.d_name, found); error != 0) {
            return error;
        }
        const FileStatus status = toFileStatus(found);
        if (options_.recursive && status.type == FileType::directory) {
            enter(folderPath, name);
        } else if (status.type != FileType::special) {
            listing_.files.push_back({joinPath(folderPath, name), status});
        }
        return 0;
    }

    void enter(const std::string& folderPath, std::string_view name) {
        if (options_.isPackage == nullptr || !options_.isPackage(name)) {
            pending_.push_back(joinPath(folderPath, name));
        }
    }

    FolderTrail trail_;
    const ListOptions& options_;
    Listing listing_;
    std::vector<std::string> pending_;
};

/// How many bytes all the paths have in common at their start.
std::size_t commonPrefix(const std::vector<ListedFile>& files) {
    const std::string_view first = files.front().path;
    std::size_t length = first.size();
    for (const ListedFile& file : files) {
        const auto difference =
            std::mismatch(first.begin(), first.begin() + static_cast<std::ptrdiff_t>(length),
                          file.path.begin(), file.path.end());
        length = static_cast<std::size_t>(difference.first - first.begin());
    }
    return length;
}

struct SortKey {
    std::uint64_t bytes; ///< the first eight bytes that differ, in an order that compares
    std::uint32_t index;
};

SortKey sortKey(const std::string& path, std::size_t from, std::uint32_t index) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, path.data() + from, std::min(sizeof bytes, path.size() - from));
    if constexpr (std::endian::native == std::endian::little) {
        bytes = __builtin_bswap64(bytes);
    }
    return {bytes, index};
}

/// Sorts small keys, then moves each file once: comparing whole paths of a hundred thousand files
/// would cost as much as looking at them.
void sortByPath(std::vector<ListedFile>& files) {
    if (files.empty()) {
        return;
    }
    const std::size_t prefix = commonPrefix(files);
    std::vector<SortKey> keys;
    keys.reserve(files.size());
    for (std::uint32_t index = 0; index < files.size(); ++index) {
        keys.push_back(sortKey(files[index].path, prefix, index));
    }
    std::sort(keys.begin(), keys.end(), [&files](const SortKey& left, const SortKey& right) {
        return left.bytes != right.bytes ? left.bytes < right.bytes
                                         : files[left.index].path < files[right.index].path;
    });
    // Follow each cycle of the permutation. A key whose index is its own place is settled.
    for (std::uint32_t start = 0; start < keys.size(); ++start) {
        if (keys[start].index == start) {
            continue;
        }
        ListedFile first = std::move(files[start]);
        std::uint32_t hole = start;
        while (keys[hole].index != start) {
            const std::uint32_t from = std::exchange(keys[hole].index, hole);
            files[hole] = std::move(files[from]);
            hole = from;
        }
        files[hole] = std::move(first);
        keys[hole].index = hole;
    }
}

} // namespace

Expected<Listing> listFolder(const std::string& folder, const ListOptions& options) {
    const Descriptor root(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!root.isOpen()) {
        return systemFailure(errno);
    }
    Walk walk(root.get(), options);
    if (Expected<void> walked = walk.run(); !walked) {
        return std::unexpected(walked.error());
    }
    Listing listing = walk.take();
    sortByPath(listing.files);
    return listing;
}

} // namespace quillon
