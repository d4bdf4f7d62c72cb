#include "platform/linux/UnpackedTree.h"

#include "platform/FileNames.h"
#include "platform/linux/FolderReader.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/SystemStatus.h"
#include "platform/linux/TreeSurvey.h"

#include <fcntl.h>
#include <functional>
#include <map>
#include <sys/stat.h>

namespace quillon {

namespace {

/// What is done with each entry, given the folder it is in and that folder's path below the root.
/// False ends the walk.
using Visit = std::function<bool(int folder, const std::string& folderPath, const dirent& entry,
                                 const struct statx& found)>;

/// Walks a tree from the top. A folder is visited before it is entered.
Expected<void> walkTree(int base, const std::string& root, const Visit& visit) {
    std::vector<std::string> pending{{}};
    while (!pending.empty()) {
        const std::string path = std::move(pending.back());
        pending.pop_back();
        Expected<Descriptor> opened = openFolderBelow(base, joinPath(root, path), O_RDONLY);
        Expected<FolderReader> reader =
            opened ? FolderReader::open(std::move(*opened)) : std::unexpected(opened.error());
        if (!reader) {
            return std::unexpected(reader.error());
        }
        while (const dirent* const entry = reader->next()) {
            struct statx found = {};
            if (const int error = lookAt(reader->folder(), entry->d_name, found); error != 0) {
                return systemFailure(error);
            }
            if (!visit(reader->folder(), path, *entry, found)) {
                return {};
            }
            if (S_ISDIR(found.stx_mode)) {
                pending.push_back(joinPath(path, entry->d_name));
            }
        }
        if (reader->error() != 0) {
            return systemFailure(reader->error());
        }
    }
    return {};
}

/// Whether a link in the folder `folderPath` can only lead to a place below the root. ".." counts
/// at the start alone: after a name, which may be a link itself, nobody knows what it goes up from.
bool staysInside(const std::string& folderPath, const std::string& target) {
    if (target.starts_with('/')) {
        return false;
    }
    auto depth =
        std::count(folderPath.begin(), folderPath.end(), '/') + (folderPath.empty() ? 0 : 1);
    bool hasName = false;
    std::string_view rest = target;
    while (!rest.empty()) {
        const std::size_t slash = rest.find('/');
        const std::string_view component = rest.substr(0, slash);
        rest = slash == std::string_view::npos ? std::string_view{} : rest.substr(slash + 1);
        if (component == "..") {
            if (hasName || --depth < 0) {
                return false;
            }
        } else {
            hasName = hasName || (!component.empty() && component != ".");
        }
    }
    return true;
}

std::unexpected<Error> refusal(const QString& what) {
    return failure(ErrorKind::invalid, QStringLiteral("the archive holds %1").arg(what));
}

class Inspection {
public:
    Expected<void> take(int folder, const std::string& folderPath, const dirent& entry,
                        const struct statx& found) {
        const std::string name = entry.d_name;
        switch (found.stx_mode & S_IFMT) {
        case S_IFDIR:
            return setMode(folder, name, found.stx_mode, S_IRWXU);
        case S_IFREG:
            if (found.stx_nlink > 1) {
                unseenNames_.try_emplace(found.stx_ino, found.stx_nlink).first->second -= 1;
            }
            return setMode(folder, name, found.stx_mode, S_IRUSR);
        case S_IFLNK:
            return takeLink(folder, folderPath, name);
        default:
            return refusal(QStringLiteral("a pipe, socket or device"));
        }
    }

    /// A file with more names than were found here is one that was on the disk before.
    [[nodiscard]] Expected<void> conclude() const {
        const bool allSeen = std::all_of(unseenNames_.begin(), unseenNames_.end(),
                                         [](const auto& file) { return file.second == 0; });
        return allSeen ? Expected<void>{}
                       : refusal(QStringLiteral("a link to a file outside of it"));
    }

private:
    static Expected<void> setMode(int folder, const std::string& name, mode_t mode, mode_t added) {
        const mode_t wanted = (mode & 0777) | added;
        if ((mode & 07777) == wanted || ::fchmodat(folder, name.c_str(), wanted, 0) == 0) {
            return {};
        }
        return systemFailure(errno);
    }

    static Expected<void> takeLink(int folder, const std::string& folderPath,
                                   const std::string& name) {
        const Expected<std::string> target = linkTarget(folder, name);
        if (!target) {
            return std::unexpected(target.error());
        }
        return staysInside(folderPath, *target)
                   ? Expected<void>{}
                   : refusal(QStringLiteral("a link that leads out of it"));
    }

    std::map<std::uint64_t, std::uint32_t> unseenNames_;
};

} // namespace

TreeSize measureTree(int folder, const std::string& root, const UnpackLimits& limits) {
    TreeSize size;
    // What can't be read while it is being written is counted at the end.
    (void)walkTree(folder, root,
                   [&](int, const std::string&, const dirent&, const struct statx& found) {
                       ++size.entries;
                       size.bytes += S_ISREG(found.stx_mode) ? found.stx_size : 0;
                       return size.isWithin(limits);
                   });
    return size;
}

Expected<void> makeSafe(int folder, const std::string& root) {
    struct stat top = {};
    if (::fstatat(folder, root.c_str(), &top, AT_SYMLINK_NOFOLLOW) != 0 ||
        ::fchmodat(folder, root.c_str(), (top.st_mode & 0777) | S_IRWXU, 0) != 0) {
        return systemFailure(errno);
    }
    Inspection inspection;
    Expected<void> verdict;
    const Expected<void> walked = walkTree(
        folder, root,
        [&](int in, const std::string& path, const dirent& entry, const struct statx& found) {
            verdict = inspection.take(in, path, entry, found);
            return verdict.has_value();
        });
    if (!walked) {
        return walked;
    }
    return verdict ? inspection.conclude() : verdict;
}

std::unexpected<Error> exceedsLimits() {
    return failure(ErrorKind::invalid,
                   QStringLiteral("the archive holds more than is safe to unpack"));
}

} // namespace quillon
