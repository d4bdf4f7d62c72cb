#pragma once

#include <QString>

#include <optional>
#include <string>

namespace quillon {

/// What kind of place holds the folder at `path`, when others can change it without this system's
/// notice: "a network drive (NFS)". Nothing for the machine's own disks, and for no folder.
[[nodiscard]] std::optional<QString> remoteKind(const std::string& path);

} // namespace quillon
