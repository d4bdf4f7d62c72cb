#include "platform/linux/Removal.h"

#include "platform/FileNames.h"
#include "platform/linux/FolderReader.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/SystemStatus.h"

#include <cerrno>
#include <fcntl.h>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

/// Removes what is not a folder from the folder `path` below `base`, and adds its subfolders to
/// `found`.
Expected<void> emptyFolder(int base, const std::string& path, std::vector<std::string>& found) {
    Expected<Descriptor> opened = openFolderBelow(base, path, O_RDONLY);
    Expected<FolderReader> reader =
        opened ? FolderReader::open(std::move(*opened)) : std::unexpected(opened.error());
    if (!reader) {
        return std::unexpected(reader.error());
    }
    std::vector<std::string> names;
    while (const dirent* const entry = reader->next()) {
        names.emplace_back(entry->d_name);
    }
    for (const std::string& name : names) {
        if (::unlinkat(reader->folder(), name.c_str(), 0) == 0) {
            continue;
        }
        if (errno != EISDIR) {
            return systemFailure(errno);
        }
        // The copy of a folder has its original's permissions, which may forbid to empty it.
        if (::fchmodat(reader->folder(), name.c_str(), S_IRWXU, 0) != 0) {
            return systemFailure(errno);
        }
        found.push_back(joinPath(path, name));
    }
    return reader->error() == 0 ? Expected<void>{} : systemFailure(reader->error());
}

class SurveyRemoval {
public:
    SurveyRemoval(TreeCursor& tree, RemovalCheck check) : tree_(tree), check_(check) {}

    Expected<void> remove(const SurveyedEntry& entry) {
        const Expected<TreeCursor::Place> place = tree_.find(entry.path);
        const Expected<FileStatus> now =
            place ? statusAt(place->folder, place->name) : std::unexpected(place.error());
        if (!now) {
            const bool isGone = now.error().kind == ErrorKind::notFound;
            return isGone ? Expected<void>{} : std::unexpected(now.error());
        }
        if (!isStillIt(entry.status, *now)) {
            return failure(ErrorKind::changed,
                           QStringLiteral("the original changed while it was being moved"));
        }
        const bool isFolder = entry.status.type == FileType::directory;
        if (::unlinkat(place->folder, place->name.c_str(), isFolder ? AT_REMOVEDIR : 0) != 0) {
            return errno == ENOENT ? Expected<void>{} : removalFailure(errno);
        }
        unlinked_.insert(entry.status.inode);
        return {};
    }

private:
    [[nodiscard]] bool isStillIt(const FileStatus& before, const FileStatus& now) const {
        if (before.type == FileType::directory) {
            return before.isSameFileAs(now) && now.type == before.type; // emptied by ourselves
        }
        // Removing one name of a file changes the status that its other names show.
        const bool hasLostName = unlinked_.contains(before.inode);
        return check_ == RemovalCheck::untouched && !hasLostName ? isUnchanged(before, now)
                                                                 : hasSameContents(before, now);
    }

    static std::unexpected<Error> removalFailure(int code) {
        if (code == ENOTEMPTY || code == EEXIST) {
            return failure(ErrorKind::changed,
                           QStringLiteral("something new appeared in the original folder, which "
                                          "stays with it"));
        }
        return systemFailure(code);
    }

    TreeCursor& tree_;
    RemovalCheck check_;
    std::set<std::uint64_t> unlinked_;
};

} // namespace

Expected<void> removeTemporary(int folder, const std::string& name) {
    if (::unlinkat(folder, name.c_str(), 0) == 0 || errno == ENOENT) {
        return {};
    }
    if (errno != EISDIR) {
        return systemFailure(errno);
    }
    if (::fchmodat(folder, name.c_str(), S_IRWXU, 0) != 0) {
        return systemFailure(errno);
    }
    std::vector<std::string> folders{name};
    for (std::size_t next = 0; next < folders.size(); ++next) {
        const std::string path = folders[next];
        if (Expected<void> emptied = emptyFolder(folder, path, folders); !emptied) {
            return emptied;
        }
    }
    for (auto path = folders.rbegin(); path != folders.rend(); ++path) {
        const Expected<Descriptor> parent = openFolderBelow(folder, parentPath(*path), O_PATH);
        if (!parent) {
            return std::unexpected(parent.error());
        }
        const std::string last(lastComponent(*path));
        if (::unlinkat(parent->get(), last.c_str(), AT_REMOVEDIR) != 0) {
            return systemFailure(errno);
        }
    }
    return {};
}

Removal removeSurveyed(TreeCursor& tree, const TreeSurvey& survey, RemovalCheck check) {
    SurveyRemoval removal(tree, check);
    Removal result;
    for (auto entry = survey.rbegin(); entry != survey.rend(); ++entry) {
        if (const Expected<void> removed = removal.remove(*entry); !removed) {
            result.error = removed.error();
            return result;
        }
        ++result.removed;
    }
    return result;
}

} // namespace quillon
