#include "platform/linux/RemoteFileSystems.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <linux/magic.h>
#include <sys/vfs.h>

namespace quillon {

namespace {

struct RemoteFileSystem {
    std::uint32_t magic;
    QStringView kind;
};

// Of VirtualBox's shared folders and Lustre, which the kernel's header lacks.
constexpr std::uint32_t sharedFolderMagic = 0x786F'4256;
constexpr std::uint32_t lustreMagic = 0x0BD0'0BD0;

constexpr std::array<RemoteFileSystem, 13> remoteFileSystems{{
    {NFS_SUPER_MAGIC, u"a network drive (NFS)"},
    {SMB_SUPER_MAGIC, u"a network drive (SMB)"},
    {CIFS_SUPER_MAGIC, u"a network drive (SMB)"},
    {SMB2_SUPER_MAGIC, u"a network drive (SMB)"},
    {NCP_SUPER_MAGIC, u"a network drive (NCP)"},
    {AFS_SUPER_MAGIC, u"a network drive (AFS)"},
    {AFS_FS_MAGIC, u"a network drive (AFS)"},
    {CODA_SUPER_MAGIC, u"a network drive (Coda)"},
    {CEPH_SUPER_MAGIC, u"a network drive (Ceph)"},
    {lustreMagic, u"a network drive (Lustre)"},
    {V9FS_MAGIC, u"a drive that another system shares (9P)"},
    {sharedFolderMagic, u"a drive that another system shares (VirtualBox)"},
    {FUSE_SUPER_MAGIC, u"a drive that a program provides (FUSE)"},
}};

} // namespace

std::optional<QString> remoteKind(const std::string& path) {
    struct statfs status = {};
    if (::statfs(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    const auto* const found = std::ranges::find(
        remoteFileSystems, static_cast<std::uint32_t>(status.f_type), &RemoteFileSystem::magic);
    return found != remoteFileSystems.end() ? std::optional(found->kind.toString()) : std::nullopt;
}

} // namespace quillon
