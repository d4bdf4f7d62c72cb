#include "platform/linux/FolderMaking.h"

#include "platform/FileNames.h"
#include "platform/linux/SystemError.h"

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace quillon {

namespace {

bool isFolder(const std::string& path) {
    struct stat found = {};
    return ::stat(path.c_str(), &found) == 0 && S_ISDIR(found.st_mode);
}

/// 0, or an errno value. A folder that somebody makes at the same moment is as good as our own, but
/// not ours to remove.
int makeOne(const std::string& path, mode_t mode, std::vector<std::string>& made) {
    if (::mkdir(path.c_str(), mode) == 0) {
        made.push_back(path);
        return 0;
    }
    const int error = errno;
    return error == EEXIST && isFolder(path) ? 0 : error;
}

} // namespace

Expected<void> makeFolderPath(const std::string& path, mode_t mode) {
    std::vector<std::string> missing;
    std::string_view ancestor = path;
    while (!isFolder(std::string(ancestor)) && !ancestor.empty() && ancestor != "/") {
        missing.emplace_back(ancestor);
        ancestor = parentPath(ancestor);
    }
    std::vector<std::string> made;
    for (auto next = missing.rbegin(); next != missing.rend(); ++next) {
        const int error = makeOne(*next, mode, made);
        if (error == 0) {
            continue;
        }
        for (auto undo = made.rbegin(); undo != made.rend(); ++undo) {
            (void)::rmdir(undo->c_str()); // stays if somebody has put something in it already
        }
        if (error == EEXIST) {
            return failure(ErrorKind::wrongType,
                           QStringLiteral("there is a file where a folder has to be"));
        }
        return systemFailure(error);
    }
    return {};
}

} // namespace quillon
