#pragma once

#include "model/RawValue.h"
#include "platform/FileSystem.h"

#include <cstdint>

namespace quillon {

enum class FolderAccess : std::uint8_t {
    ok,      ///< it can be listed
    missing, ///< nothing is there, or something that is not a folder
    denied,  ///< it is there, and the system won't let it be listed
};

template <>
inline constexpr auto rawValues<FolderAccess> = std::to_array<std::u16string_view>({
    u"ok",
    u"missing",
    u"denied",
});

/// Looks at the disk.
[[nodiscard]] FolderAccess probeAccess(const FileSystem& fileSystem, const std::string& path);

} // namespace quillon
