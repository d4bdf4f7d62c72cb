#include "platform/linux/Listing.h"

#include "platform/FileNames.h"
#include "platform/linux/FolderReader.h"
#include "platform/linux/FolderTrail.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/SystemStatus.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <span>
#include <thread>
#include <vector>

namespace quillon {

namespace {

bool isSpecialType(unsigned char type) {
    return type == DT_FIFO || type == DT_SOCK || type == DT_CHR || type == DT_BLK;
}

// Below this many files another thread costs more than it saves.
constexpr std::size_t filesWorthAThread = 4096;

/// Calls `work(from, to)` for shares of `count` things, side by side when there are many.
template <typename Work>
void inShares(std::size_t count, const Work& work) {
    const std::size_t threads = std::clamp<std::size_t>(
        count / filesWorthAThread, 1, std::max(1U, std::thread::hardware_concurrency()));
    const std::size_t share = (count + threads - 1) / threads;
    std::vector<std::jthread> others;
    for (std::size_t from = share; from < count; from += share) {
        others.emplace_back(work, from, std::min(from + share, count));
    }
    work(0, std::min(share, count));
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
        const std::size_t first = listing_.files.size();
        while (const dirent* const entry = reader->next()) {
            takeEntry(folder, *entry);
        }
        if (Expected<void> looked = lookAtAll(reader->folder(), folder, first); !looked) {
            return looked;
        }
        return reader->error() == 0 ? Expected<void>{} : systemFailure(reader->error());
    }

    void takeEntry(const std::string& folderPath, const dirent& entry) {
        const std::string_view name = entry.d_name;
        if (name.front() == '.' || isSpecialType(entry.d_type)) {
            return;
        }
        if (!isValidUtf8(name)) {
            ++listing_.skippedNames;
        } else if (options_.recursive && entry.d_type == DT_DIR) {
            enter(folderPath, name);
        } else {
            listing_.files.push_back({joinPath(folderPath, name), {}});
        }
    }

    /// Fills in the status of the files from `first` on. One that can't be looked at (it has just
    /// gone) is left out.
    [[nodiscard]] Expected<void> lookAtAll(int folder, const std::string& folderPath,
                                           std::size_t first) {
        const std::span<ListedFile> files = std::span(listing_.files).subspan(first);
        const std::size_t nameStart = folderPath.empty() ? 0 : folderPath.size() + 1;
        std::vector<int> errors(files.size());
        inShares(files.size(), [&](std::size_t from, std::size_t to) {
            for (std::size_t i = from; i < to; ++i) {
                struct statx found;
                errors[i] = lookAt(folder, files[i].path.c_str() + nameStart, found);
                if (errors[i] == 0) {
                    files[i].status = toFileStatus(found);
                }
            }
        });
        if (std::ranges::find(errors, EACCES) != errors.end() &&
            ::faccessat(folder, ".", X_OK, AT_EACCESS) != 0) {
            return systemFailure(EACCES);
        }
        std::size_t kept = first;
        for (std::size_t i = 0; i < errors.size(); ++i) {
            ListedFile& file = listing_.files[first + i];
            if (errors[i] != 0) {
                continue;
            }
            if (options_.recursive && file.status.type == FileType::directory) {
                enter(folderPath, lastComponent(file.path));
            } else if (file.status.type != FileType::special) {
                if (kept != first + i) {
                    listing_.files[kept] = std::move(file);
                }
                ++kept;
            }
        }
        listing_.files.resize(kept);
        return {};
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
