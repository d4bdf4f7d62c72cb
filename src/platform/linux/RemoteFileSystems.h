#pragma once

#include <QString>

#include <optional>
#include <string>

namespace quillon {

// What these say comes from the system's table of mounts: a network drive that has gone may never
// answer, and so is not asked.

/// What kind of place holds the folder at `path`, when others can change it without this system's
/// notice: "a network drive (NFS)". Nothing for the machine's own disks.
[[nodiscard]] std::optional<QString> remoteKind(const std::string& path);

/// The same of a place that is mounted somewhere visible beneath the folder.
[[nodiscard]] std::optional<QString> remoteKindWithin(const std::string& path);

} // namespace quillon
