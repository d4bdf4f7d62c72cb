#include "platform/linux/ExtendedAttributes.h"

#include "platform/linux/SystemError.h"

#include <cerrno>
#include <linux/limits.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace quillon {

namespace {

bool isSymbolicLink(const std::string& path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

} // namespace

Expected<std::optional<QByteArray>> readAttribute(const std::string& path, const char* name) {
    std::array<char, XATTR_SIZE_MAX> buffer; // the kernel's own limit: one call is always enough
    const ssize_t size = ::lgetxattr(path.c_str(), name, buffer.data(), buffer.size());
    if (size >= 0) {
        return QByteArray(buffer.data(), size);
    }
    if (errno == ENODATA || errno == ENOTSUP) {
        return std::nullopt;
    }
    return systemFailure(errno);
}

Expected<void> writeAttribute(const std::string& path, const char* name,
                              const std::optional<QByteArray>& value) {
    const int result = value ? ::lsetxattr(path.c_str(), name, value->constData(),
                                           static_cast<std::size_t>(value->size()), 0)
                             : ::lremovexattr(path.c_str(), name);
    if (result == 0 || (!value && errno == ENODATA)) {
        return {};
    }
    Error error = systemError(errno);
    if (errno == EPERM && isSymbolicLink(path)) {
        error.kind = ErrorKind::unsupported;
    }
    return std::unexpected(error);
}

} // namespace quillon
