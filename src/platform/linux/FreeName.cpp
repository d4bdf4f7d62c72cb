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

/// Whether two names are one file, looked at in the order given. 0 or an errno value in `error`.
bool isSameFile(int oneFolder, const std::string& one, int otherFolder, const std::string& other,
                int& error) {
    struct statx first = {};
    struct statx second = {};
    error = lookAt(oneFolder, one.c_str(), first);
    if (error == 0) {
        error = lookAt(otherFolder, other.c_str(), second);
    }
    return error == 0 && toFileStatus(first).isSameFileAs(toFileStatus(second));
}

int linkThenUnlink(int fromFolder, const std::string& from, int toFolder, const std::string& to) {
    if (::linkat(fromFolder, from.c_str(), toFolder, to.c_str(), 0) != 0) {
        const bool hasNoLinks = errno == EPERM || errno == ENOSYS || errno == EMLINK;
        return hasNoLinks ? EOPNOTSUPP : errno;
    }
    // From here the file has two names. Only a name that is still this file may go, and the last
    // look before the old name goes is at that.
    int error = 0;
    if (isSameFile(toFolder, to, fromFolder, from, error)) {
        if (::unlinkat(fromFolder, from.c_str(), 0) == 0) {
            return 0;
        }
        error = errno;
    } else if (error == 0) {
        return 0; // somebody put another file under the old name
    }
    int ignored = 0;
    if (isSameFile(fromFolder, from, toFolder, to, ignored)) {
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
