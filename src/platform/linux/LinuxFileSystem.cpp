#include "platform/linux/LinuxFileSystem.h"

#include "platform/FileNames.h"
#include "platform/linux/Ancestry.h"
#include "platform/linux/FolderMaking.h"
#include "platform/linux/FreeName.h"
#include "platform/linux/Listing.h"
#include "platform/linux/SameTree.h"
#include "platform/linux/StagedCopy.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/SystemStatus.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace quillon {

namespace {

/// Where something is taken from and where it goes, each folder held open.
struct Route {
    Descriptor sourceFolder;
    std::string sourceName;
    Descriptor targetFolder;
    std::string wantedName;

    [[nodiscard]] static Expected<Route> open(const std::string& source,
                                              const std::string& wanted) {
        Route route;
        route.sourceFolder = Descriptor(
            ::open(std::string(parentPath(source)).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        if (!route.sourceFolder.isOpen()) {
            return systemFailure(errno);
        }
        route.targetFolder = Descriptor(
            ::open(std::string(parentPath(wanted)).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (!route.targetFolder.isOpen()) {
            return systemFailure(errno);
        }
        route.sourceName = lastComponent(source);
        route.wantedName = lastComponent(wanted);
        return route;
    }
};

bool isSameFileAt(const std::string& path, const FileStatus& file) {
    const Expected<FileStatus> there = statusAt(AT_FDCWD, path);
    return there && there->isSameFileAs(file);
}

bool isSameFolder(const std::string& one, const std::string& other) {
    struct stat first = {};
    struct stat second = {};
    return ::stat(std::string(parentPath(one)).c_str(), &first) == 0 &&
           ::stat(std::string(parentPath(other)).c_str(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

/// The source of a move or copy, if it is something that may be moved or copied there.
Expected<FileStatus> checkedSource(const std::string& source, const std::string& wanted,
                                   const char* verb) {
    Expected<FileStatus> status = statusAt(AT_FDCWD, source);
    if (!status) {
        return status;
    }
    if (status->type == FileType::special) {
        return failure(ErrorKind::wrongType, QStringLiteral("it is a pipe, socket or device"));
    }
    if (status->type == FileType::directory && isWithin(std::string(parentPath(wanted)), *status)) {
        return failure(ErrorKind::invalid,
                       QStringLiteral("a folder can’t be %1 into itself").arg(QLatin1String(verb)));
    }
    return status;
}

Placement placed(const std::string& wanted, const std::string& name, QStringList losses) {
    return {joinPath(parentPath(wanted), name), true, std::move(losses)};
}

Expected<Placement> moveAcross(const std::string& source, const std::string& wanted,
                               TemporaryNames& temporaries) {
    const Expected<Route> route = Route::open(source, wanted);
    if (!route) {
        return std::unexpected(route.error());
    }
    // Better told now than after gigabytes.
    if (::faccessat(route->sourceFolder.get(), ".", W_OK | X_OK, AT_EACCESS) != 0) {
        return systemFailure(errno);
    }
    StagedCopy copy(route->sourceFolder.get(), route->sourceName, route->targetFolder.get(),
                    temporaries.nextFree(route->targetFolder.get(), "part"));
    if (Expected<void> made = copy.make(true); !made) {
        return std::unexpected(made.error());
    }
    const Expected<FreeName> published = copy.publish(route->wantedName);
    if (!published) {
        return std::unexpected(published.error());
    }
    if (Expected<void> removed = copy.removeSource(); !removed) {
        return std::unexpected(removed.error());
    }
    return placed(wanted, published->name, copy.losses());
}

} // namespace

LinuxFileSystem::LinuxFileSystem(std::string temporaryTag)
    : temporaries_(std::move(temporaryTag)) {}

Expected<Listing> LinuxFileSystem::list(const std::string& folder,
                                        const ListOptions& options) const {
    return listFolder(folder, options);
}

Expected<FileStatus> LinuxFileSystem::status(const std::string& path) const {
    return statusAt(AT_FDCWD, path);
}

std::string LinuxFileSystem::resolved(const std::string& path) const {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr),
                                                           &std::free);
    return real != nullptr ? std::string(real.get()) : path;
}

Expected<Placement> LinuxFileSystem::move(const std::string& source, const std::string& wanted) {
    const Expected<FileStatus> status = checkedSource(source, wanted, "moved");
    if (!status) {
        return std::unexpected(status.error());
    }
    hints_.check(std::string(parentPath(wanted)));
    bool isThere = false;
    bool isAcross = false;
    const auto claim = [&](const std::string& candidate) {
        const int error = renameWithoutReplacing(AT_FDCWD, source, AT_FDCWD, candidate);
        isThere = (error == EEXIST || error == EXDEV) && isSameFileAt(candidate, *status);
        isAcross = error == EXDEV && !isThere;
        return isThere || isAcross ? 0 : error;
    };
    // Within one folder the source may itself be one of the numbered names.
    const Expected<FreeName> claimed = claimFreeName(
        wanted, claim, [&] { return isSameFolder(source, wanted) ? 2U : hints_.next(wanted); });
    if (!claimed) {
        return std::unexpected(claimed.error());
    }
    if (isAcross) {
        return moveAcross(source, wanted, temporaries_);
    }
    if (!isThere) {
        hints_.placed(wanted, claimed->number);
    }
    return Placement{claimed->name, !isThere, {}};
}

Expected<Placement> LinuxFileSystem::copy(const std::string& source, const std::string& wanted) {
    if (const Expected<FileStatus> status = checkedSource(source, wanted, "copied"); !status) {
        return std::unexpected(status.error());
    }
    const Expected<Route> route = Route::open(source, wanted);
    if (!route) {
        return std::unexpected(route.error());
    }
    const Expected<std::optional<std::string>> same = findSame(
        route->sourceFolder.get(), route->sourceName, route->targetFolder.get(), route->wantedName);
    if (!same) {
        return std::unexpected(same.error());
    }
    if (*same) {
        return Placement{joinPath(parentPath(wanted), **same), false, {}};
    }
    StagedCopy copy(route->sourceFolder.get(), route->sourceName, route->targetFolder.get(),
                    temporaries_.nextFree(route->targetFolder.get(), "part"));
    if (Expected<void> made = copy.make(false); !made) {
        return std::unexpected(made.error());
    }
    const Expected<FreeName> published = copy.publish(route->wantedName);
    if (!published) {
        return std::unexpected(published.error());
    }
    return placed(wanted, published->name, copy.losses());
}

Expected<void> LinuxFileSystem::makeFolders(const std::string& path) {
    return makeFolderPath(path, 0777);
}

} // namespace quillon
