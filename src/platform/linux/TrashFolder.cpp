#include "platform/linux/TrashFolder.h"

#include "platform/FileNames.h"
#include "platform/linux/FileContents.h"
#include "platform/linux/FolderMaking.h"
#include "platform/linux/FolderReader.h"
#include "platform/linux/FreeName.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/TrashInfo.h"

#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>

namespace quillon {

namespace {

constexpr std::string_view recordEnding = ".trashinfo";
/// Room for the record's ending and for any number that a collision can add.
constexpr std::size_t longestName = maxNameBytes - recordEnding.size() - 12;

std::unexpected<Error> noTrash() {
    return failure(ErrorKind::unsupported,
                   QStringLiteral("the disk it is on has no trash and none can be made there"));
}

/// Makes or opens a folder that is ours alone: no link, nobody else's.
Expected<void> makePrivate(const std::string& path) {
    if (::mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST) {
        return noTrash();
    }
    struct stat found = {};
    const bool isOurs =
        ::lstat(path.c_str(), &found) == 0 && S_ISDIR(found.st_mode) && found.st_uid == ::geteuid();
    return isOurs ? Expected<void>{} : noTrash();
}

bool isTrustworthy(const std::string& shared) {
    struct stat found = {};
    return ::lstat(shared.c_str(), &found) == 0 && S_ISDIR(found.st_mode) &&
           (found.st_mode & S_ISVTX) != 0;
}

/// A folder inside of a trash, made where it is missing and never a link.
Expected<Descriptor> openInside(int trash, const char* name) {
    if (::mkdirat(trash, name, S_IRWXU) != 0 && errno != EEXIST) {
        return systemFailure(errno);
    }
    return openFolderBelow(trash, name, O_RDONLY);
}

std::string recordName(const std::string& trashedName) {
    return trashedName + std::string(recordEnding);
}

} // namespace

Expected<TrashFolder> TrashFolder::openHome(const std::string& path) {
    if (Expected<void> made = makeFolderPath(path, S_IRWXU); !made) {
        return std::unexpected(made.error());
    }
    return open(path);
}

Expected<TrashFolder> TrashFolder::openTop(const std::string& top) {
    const std::string user = std::to_string(::getuid());
    const std::string shared = joinPath(top, ".Trash");
    if (isTrustworthy(shared)) {
        const std::string path = joinPath(shared, user);
        if (makePrivate(path)) {
            return open(path);
        }
    }
    const std::string path = joinPath(top, ".Trash-" + user);
    if (Expected<void> made = makePrivate(path); !made) {
        return std::unexpected(made.error());
    }
    return open(path);
}

Expected<TrashFolder> TrashFolder::open(const std::string& path) {
    const Descriptor trash(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!trash.isOpen()) {
        return systemFailure(errno);
    }
    Expected<Descriptor> files = openInside(trash.get(), "files");
    Expected<Descriptor> records = openInside(trash.get(), "info");
    if (!files || !records) {
        return std::unexpected(files ? records.error() : files.error());
    }
    return TrashFolder(path, std::move(*files), std::move(*records));
}

Expected<std::string> TrashFolder::put(int folder, const std::string& name,
                                       const std::string& recordedPath) {
    const std::string record = trashInfo(recordedPath, std::time(nullptr));
    const NameParts parts = splitName(name);
    const std::string wanted = fittedName(parts.stem, parts.extension, longestName);
    Expected<FreeName> claimed = claimFreeName(wanted, [&](const std::string& trashedName) {
        return claim(folder, name, trashedName, record);
    });
    if (!claimed) {
        return std::unexpected(claimed.error());
    }
    return joinPath(joinPath(path_, "files"), claimed->name);
}

/// The record first: it claims the name, and a file in the trash never lacks one.
int TrashFolder::claim(int folder, const std::string& name, const std::string& trashedName,
                       const std::string& record) {
    const std::string recordFile = recordName(trashedName);
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const Descriptor file(::openat(records_.get(), recordFile.c_str(), flags, S_IRUSR | S_IWUSR));
    if (!file.isOpen()) {
        return errno;
    }
    int error = writeAll(file.get(), record.data(), record.size());
    if (error == 0) {
        error = renameWithoutReplacing(folder, name, files_.get(), trashedName);
    }
    if (error != 0) {
        // A record that can't be removed names a file that is not there, which every trash ignores.
        (void)::unlinkat(records_.get(), recordFile.c_str(), 0);
    }
    return error;
}

std::string trashRecordOf(const std::string& trashedPath) {
    const std::string_view files = parentPath(trashedPath);
    if (lastComponent(files) != "files") {
        return {};
    }
    return joinPath(joinPath(parentPath(files), "info"),
                    recordName(std::string(lastComponent(trashedPath))));
}

} // namespace quillon
