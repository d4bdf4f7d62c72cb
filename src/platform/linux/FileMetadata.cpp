#include "platform/linux/FileMetadata.h"

#include "platform/linux/SystemError.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace quillon {

namespace {

constexpr std::string_view accessList = "system.posix_acl_access";
constexpr std::string_view defaultAccessList = "system.posix_acl_default";

void addLoss(QStringList& losses, const QString& loss) {
    if (!losses.contains(loss)) {
        losses.append(loss);
    }
}

/// Belongs to the machine's policy or to a mount, and is made anew where the copy lies.
bool staysBehind(std::string_view attribute) {
    return attribute == "security.selinux" || attribute == "security.ima" ||
           attribute == "security.evm" || attribute.starts_with("trusted.overlay.");
}

QString lossOf(std::string_view attribute) {
    struct Meaning {
        std::string_view part;
        QString loss;
    };
    static const std::array<Meaning, 6> meanings{{
        {"_kMDItemUserTags", QStringLiteral("tags")},
        {"user.xdg.tags", QStringLiteral("tags")},
        {"kMDItemWhereFroms", QStringLiteral("where it came from")},
        {"user.xdg.origin.url", QStringLiteral("where it came from")},
        {"user.xdg.referrer.url", QStringLiteral("where it came from")},
        {"acl", QStringLiteral("access list")},
    }};
    for (const Meaning& meaning : meanings) {
        const bool isSystems = meaning.part != "acl" || attribute.starts_with("system.");
        if (isSystems && attribute.find(meaning.part) != std::string_view::npos) {
            return meaning.loss;
        }
    }
    return QStringLiteral("extended attributes");
}

/// The names of a file's extended attributes; none where the file system has none.
Expected<std::vector<std::string>> attributesOf(int file) {
    std::vector<char> names;
    ssize_t size = 0;
    do {
        size = ::flistxattr(file, nullptr, 0);
        names.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
        size = size > 0 ? ::flistxattr(file, names.data(), names.size()) : size;
    } while (size < 0 && errno == ERANGE);
    if (size < 0 && errno != EOPNOTSUPP) {
        return systemFailure(errno);
    }
    std::vector<std::string> attributes;
    for (std::size_t at = 0; at < names.size() && size > 0;) {
        attributes.emplace_back(names.data() + at);
        at += attributes.back().size() + 1;
    }
    return attributes;
}

/// 0 or an errno value.
int copyAttribute(int from, int to, const std::string& name) {
    std::vector<char> value;
    ssize_t size = 0;
    do {
        size = ::fgetxattr(from, name.c_str(), nullptr, 0);
        value.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
        size = size > 0 ? ::fgetxattr(from, name.c_str(), value.data(), value.size()) : size;
    } while (size < 0 && errno == ERANGE);
    if (size < 0) {
        return errno;
    }
    const auto length = static_cast<std::size_t>(size);
    return ::fsetxattr(to, name.c_str(), value.data(), length, 0) == 0 ? 0 : errno;
}

Expected<void> copyAttributes(int from, int to, const std::vector<std::string>& attributes,
                              bool accessLists, QStringList& losses) {
    for (const std::string& name : attributes) {
        const bool isAccessList = name == accessList || name == defaultAccessList;
        if (isAccessList != accessLists || staysBehind(name)) {
            continue;
        }
        const int error = copyAttribute(from, to, name);
        if (error == EIO) {
            return systemFailure(error);
        }
        if (error != 0) {
            addLoss(losses, lossOf(name));
        }
    }
    return {};
}

/// A new file takes over the default access list of its folder; the original had its own.
void dropInheritedAccessLists(int file) {
    for (const std::string_view list : {accessList, defaultAccessList}) {
        // There is none on most file systems. One that can't be dropped shows in the permissions.
        (void)::fremovexattr(file, list.data());
    }
}

/// Whether the file belongs to the original's owner now.
bool copyOwner(int to, const struct stat& original, QStringList& losses) {
    struct stat made = {};
    if (::fstat(to, &made) != 0) {
        return false;
    }
    if (made.st_uid == original.st_uid && made.st_gid == original.st_gid) {
        return true;
    }
    if (::fchown(to, original.st_uid, original.st_gid) == 0) {
        return true;
    }
    const bool keepsUser = made.st_uid == original.st_uid;
    if (!keepsUser) {
        addLoss(losses, QStringLiteral("owner"));
    }
    const bool keepsGroup = ::fchown(to, static_cast<uid_t>(-1), original.st_gid) == 0;
    if (!keepsGroup) {
        addLoss(losses, QStringLiteral("group"));
    }
    return keepsUser && keepsGroup;
}

void copyPermissions(int to, const struct stat& original, bool isSameOwner, QStringList& losses) {
    // What ran as somebody else must not run as whoever owns the copy.
    const mode_t kept = isSameOwner ? 07777 : 01777;
    const mode_t wanted = original.st_mode & kept;
    struct stat made = {};
    const bool isSet = ::fchmod(to, wanted) == 0;
    if (!isSet || ::fstat(to, &made) != 0 || (made.st_mode & 0777) != (wanted & 0777)) {
        addLoss(losses, QStringLiteral("permissions"));
    }
}

} // namespace

Expected<void> copyMetadata(int from, int to, QStringList& losses) {
    struct stat original = {};
    if (::fstat(from, &original) != 0) {
        return systemFailure(errno);
    }
    const Expected<std::vector<std::string>> attributes = attributesOf(from);
    if (!attributes) {
        return std::unexpected(attributes.error());
    }
    const bool isSameOwner = copyOwner(to, original, losses);
    dropInheritedAccessLists(to);
    // Attributes need a file that may be written, access lists one whose permissions are set.
    Expected<void> copied = copyAttributes(from, to, *attributes, false, losses);
    copyPermissions(to, original, isSameOwner, losses);
    if (copied) {
        copied = copyAttributes(from, to, *attributes, true, losses);
    }
    const std::array times{original.st_atim, original.st_mtim};
    if (copied && ::futimens(to, times.data()) != 0) {
        addLoss(losses, QStringLiteral("dates"));
    }
    return copied;
}

Expected<void> copyLinkMetadata(int fromFolder, const std::string& from, int toFolder,
                                const std::string& to, QStringList& losses) {
    struct stat original = {};
    if (::fstatat(fromFolder, from.c_str(), &original, AT_SYMLINK_NOFOLLOW) != 0) {
        return systemFailure(errno);
    }
    const bool isOwned = ::fchownat(toFolder, to.c_str(), original.st_uid, original.st_gid,
                                    AT_SYMLINK_NOFOLLOW) == 0;
    if (!isOwned && original.st_uid != ::geteuid()) {
        addLoss(losses, QStringLiteral("owner"));
    }
    const std::array times{original.st_atim, original.st_mtim};
    if (::utimensat(toFolder, to.c_str(), times.data(), AT_SYMLINK_NOFOLLOW) != 0) {
        addLoss(losses, QStringLiteral("dates"));
    }
    return {};
}

} // namespace quillon
