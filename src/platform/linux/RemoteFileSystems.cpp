#include "platform/linux/RemoteFileSystems.h"

#include "platform/FileNames.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string_view>
#include <system_error>

namespace quillon {

namespace {

struct RemoteFileSystem {
    std::string_view type;
    QStringView kind;
};

constexpr std::array<RemoteFileSystem, 15> remoteFileSystems{{
    {"nfs", u"a network drive (NFS)"},
    {"nfs4", u"a network drive (NFS)"},
    {"smbfs", u"a network drive (SMB)"},
    {"cifs", u"a network drive (SMB)"},
    {"smb3", u"a network drive (SMB)"},
    {"ncpfs", u"a network drive (NCP)"},
    {"afs", u"a network drive (AFS)"},
    {"coda", u"a network drive (Coda)"},
    {"ceph", u"a network drive (Ceph)"},
    {"lustre", u"a network drive (Lustre)"},
    {"9p", u"a drive that another system shares (9P)"},
    {"vboxsf", u"a drive that another system shares (VirtualBox)"},
    {"virtiofs", u"a drive that another system shares (virtiofs)"},
    {"fuse", u"a drive that a program provides (FUSE)"},
    {"fuseblk", u"a drive that a program provides (FUSE)"},
}};

/// As many as the system itself follows.
constexpr int mostLinks = 40;

/// Kinds by mount point; empty for the machine's own.
using Mounts = std::map<std::string, QStringView>;

QStringView kindOf(std::string_view type) {
    const std::string_view family = type.substr(0, type.find('.')); // "fuse.sshfs"
    const auto* const found = std::ranges::find(remoteFileSystems, family, &RemoteFileSystem::type);
    return found != remoteFileSystems.end() ? found->kind : QStringView();
}

/// A space is "\040" in the table.
std::string unescaped(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        constexpr std::size_t length = 4;
        const bool isEscape = text.front() == '\\' && text.size() >= length;
        plain +=
            isEscape
                ? static_cast<char>(std::strtol(std::string(text.substr(1, 3)).c_str(), nullptr, 8))
                : text.front();
        text.remove_prefix(isEscape ? length : 1);
    }
    return plain;
}

Mounts currentMounts() {
    Mounts mounts;
    std::ifstream table("/proc/self/mountinfo");
    // "36 35 98:0 / /mnt/music rw,noatime shared:1 - nfs4 server:/music rw"
    for (std::string line; std::getline(table, line);) {
        std::istringstream fields(line);
        std::string field;
        std::string point;
        fields >> field >> field >> field >> field >> point;
        while (fields >> field && field != "-") {
        }
        std::string type;
        if (fields >> type) {
            mounts[unescaped(point)] = kindOf(type);
        }
    }
    return mounts;
}

/// Where a path leads to, or the first remote mount point on the way, past which nothing is touched
/// but what a remote root directory holds.
std::string destination(const std::string& path, const Mounts& mounts) {
    std::string place = "/";
    std::string rest = path;
    for (int links = 0; !rest.empty();) {
        const std::size_t slash = rest.find('/');
        const std::string name = rest.substr(0, slash);
        rest.erase(0, slash == std::string::npos ? slash : slash + 1);
        if (name.empty() || name == ".") {
            continue;
        }
        if (name == "..") {
            place = parentPath(place);
            continue;
        }
        const std::string next = joinPath(place, name);
        if (const auto mount = mounts.find(next); mount != mounts.end() && !mount->second.empty()) {
            return next;
        }
        std::error_code notALink;
        const std::string target = std::filesystem::read_symlink(next, notALink).string();
        if (notALink || ++links > mostLinks) {
            place = next;
            continue;
        }
        place = target.starts_with('/') ? "/" : place;
        rest = target + '/' + rest;
    }
    return place;
}

std::optional<QString> textOf(QStringView kind) {
    return kind.empty() ? std::nullopt : std::optional(kind.toString());
}

} // namespace

std::optional<QString> remoteKind(const std::string& path) {
    const Mounts mounts = currentMounts();
    std::string place = destination(path, mounts);
    while (!mounts.contains(place) && place != "/") {
        place = parentPath(place);
    }
    const auto mount = mounts.find(place);
    return mount != mounts.end() ? textOf(mount->second) : std::nullopt;
}

std::optional<QString> remoteKindWithin(const std::string& path) {
    const Mounts mounts = currentMounts();
    const std::string folder = destination(path, mounts);
    const std::string start = folder == "/" ? folder : folder + '/';
    for (const auto& [point, kind] : mounts) {
        const bool isHidden = point.find("/.", start.size() - 1) != std::string::npos;
        if (!kind.empty() && point.starts_with(start) && !isHidden) {
            return textOf(kind);
        }
    }
    return std::nullopt;
}

} // namespace quillon
