#pragma once

#include "platform/Error.h"
#include "platform/FileStatus.h"

#include <QStringList>

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

struct ListedFile {
    std::string path; ///< relative to the listed folder, valid UTF-8
    FileStatus status;
};

struct Listing {
    std::vector<ListedFile> files; ///< ordered by the bytes of `path`
    std::size_t skippedNames = 0;  ///< names that are not valid UTF-8, left out
};

struct ListOptions {
    /// Walk subfolders and return files only. Otherwise the direct contents, folders included.
    bool recursive = false;
    /// Folders for which this is true are one item: their insides are never walked.
    bool (*isPackage)(std::string_view name) = nullptr;
};

/// Where a move or a copy ended.
struct Placement {
    std::string path;   ///< the name it got, perhaps a numbered one
    bool done = true;   ///< false when there was nothing to do: it is there already
    QStringList losses; ///< what the destination could not hold ("tags", "permissions"), for people
};

/// User files. Every operation leaves each file whole at its source, its destination or a hidden
/// temporary at every instant, never overwrites, and never shows a half-written file under a final
/// name. Paths are absolute bytes. Symbolic links are handled as links, never followed, except in
/// the folders that lead to a file. Any thread.
///
/// Errors carry the system's description. Common kinds: notFound, permissionDenied, noSpace,
/// wrongType (a pipe, socket or device; or a file where a folder must be), changed, io.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// Hidden names, pipes, sockets and devices are left out; unreadable subfolders are passed
    /// over. Fails with notFound, wrongType or permissionDenied when `folder` itself can't be
    /// listed.
    [[nodiscard]] virtual Expected<Listing> list(const std::string& folder,
                                                 const ListOptions& options) const = 0;

    [[nodiscard]] virtual Expected<FileStatus> status(const std::string& path) const = 0;

    /// The path with every link and ".." in it resolved; the path itself when it doesn't exist.
    [[nodiscard]] virtual std::string resolved(const std::string& path) const = 0;

    /// Moves to `wanted`, or, where that is taken, to the first free numbered name beside it
    /// ("a 2.txt"). Across devices it copies, checks that the source is unchanged, publishes, and
    /// only then removes the source. `done` is false when `wanted` is already this very file.
    /// Fails with `changed` when the source changed meanwhile; then nothing has been removed.
    [[nodiscard]] virtual Expected<Placement> move(const std::string& source,
                                                   const std::string& wanted) = 0;

    /// Copies with contents, permissions, times and extended attributes, to `wanted` or a numbered
    /// name. `done` is false, with the path found, when `wanted` or a numbered name that stands
    /// before the first free one already holds the same contents.
    [[nodiscard]] virtual Expected<Placement> copy(const std::string& source,
                                                   const std::string& wanted) = 0;

    /// Makes the folder and those that lead to it. Succeeds when it is already a folder.
    [[nodiscard]] virtual Expected<void> makeFolders(const std::string& path) = 0;
};

} // namespace quillon
