#include "platform/linux/FreeName.h"

#include "platform/FileNames.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/SystemStatus.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace quillon {

namespace {

bool isSameFile(int oneFolder, const std::string& one, int otherFolder, const std::string& other) {
    const Expected<FileStatus> first = statusAt(oneFolder, one);
    const Expected<FileStatus> second = statusAt(otherFolder, other);
    return first && second && first->isSameFileAs(*second);
}

int linkThenUnlink(int fromFolder, const std::string& from, int toFolder, const std::string& to) {
    if (::linkat(fromFolder, from.c_str(), toFolder, to.c_str(), 0) != 0) {
        const bool hasNoLinks = errno == EPERM || errno == ENOSYS || errno == EMLINK;
        return hasNoLinks ? EOPNOTSUPP : errno;
    }
    // From here the file has two names. Only a name that is still this file may go, so the old one
    // is looked at last, right before it does.
    struct statx made = {};
    struct statx left = {};
    const int madeError = lookAt(toFolder, to.c_str(), made);
    const int leftError = lookAt(fromFolder, from.c_str(), left);
    const bool areSeen = madeError == 0 && leftError == 0;
    if (leftError == ENOENT || (areSeen && !toFileStatus(left).isSameFileAs(toFileStatus(made)))) {
        return 0; // somebody has taken the old name away, or put another file there
    }
    if (areSeen && ::unlinkat(fromFolder, from.c_str(), 0) == 0) {
        return 0;
    }
    const int error = areSeen ? errno : std::max(madeError, leftError);
    if (isSameFile(fromFolder, from, toFolder, to)) {
        // Should this fail as well, the file is whole under both names.
        (void)::unlinkat(toFolder, to.c_str(), 0);
    }
    return error;
}

} // namespace

int renameWithoutReplacing(int fromFolder, const std::string& from, int toFolder,
                           const std::string& to) {
    if (::renameat2(fromFolder, from.c_str(), toFolder, to.c_str(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    const bool isUnknown = errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
    return isUnknown ? linkThenUnlink(fromFolder, from, toFolder, to) : errno;
}

std::unexpected<Error> renameFailure(int code) {
    if (code == EOPNOTSUPP) {
        return failure(ErrorKind::unsupported,
                       QStringLiteral("this file system can’t move a file without the risk of "
                                      "replacing another"));
    }
    if (code == EXDEV) {
        return failure(ErrorKind::unsupported, QStringLiteral("it is on another disk"));
    }
    return systemFailure(code);
}

std::string candidateName(const std::string& wanted, unsigned number) {
    if (number == 1) {
        return wanted;
    }
    return joinPath(parentPath(wanted), numberedName(lastComponent(wanted), number));
}

Expected<FreeName> claimFreeName(const std::string& wanted,
                                 const std::function<int(const std::string& name)>& claim,
                                 const std::function<unsigned()>& firstNumber) {
    for (unsigned number = 1;; number = number == 1 ? firstNumber() : number + 1) {
        std::string name = candidateName(wanted, number);
        const int error = claim(name);
        if (error == 0) {
            return FreeName{std::move(name), number};
        }
        if (error != EEXIST) {
            return renameFailure(error);
        }
    }
}

} // namespace quillon
