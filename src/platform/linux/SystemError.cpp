#include "platform/linux/SystemError.h"

#include <cerrno>
#include <cstring>

namespace quillon {

namespace {

ErrorKind kindOf(int code) {
    switch (code) {
    case ENOENT:
        return ErrorKind::notFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return ErrorKind::permissionDenied;
    case EEXIST:
        return ErrorKind::alreadyExists;
    case ENOSPC:
    case EDQUOT:
        return ErrorKind::noSpace;
    case ENOTDIR:
    case EISDIR:
    case ELOOP:
        return ErrorKind::wrongType;
    case EOPNOTSUPP:
    case ENOSYS:
    case EXDEV:
        return ErrorKind::unsupported;
    case EINVAL:
    case ENAMETOOLONG:
        return ErrorKind::invalid;
    case ETIMEDOUT:
        return ErrorKind::timedOut;
    default:
        return ErrorKind::io;
    }
}

} // namespace

Error systemError(int code) {
    const char* const description = ::strerrordesc_np(code);
    return {kindOf(code), description != nullptr ? QString::fromUtf8(description)
                                                 : QStringLiteral("Error %1").arg(code)};
}

std::unexpected<Error> systemFailure(int code) {
    return std::unexpected(systemError(code));
}

} // namespace quillon
