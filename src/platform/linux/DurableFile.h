#pragma once

#include "platform/Error.h"

#include <QByteArray>

#include <cstdint>
#include <string>

namespace quillon {

/// As Storage::readWhole.
[[nodiscard]] Expected<QByteArray> readWholeFile(const std::string& path, std::uint64_t maxBytes);

/// As Storage::writeDurably.
[[nodiscard]] Expected<void> writeFileDurably(const std::string& path, const QByteArray& bytes);

/// As Storage::writeNewDurably.
[[nodiscard]] Expected<void> writeNewFileDurably(const std::string& path, const QByteArray& bytes);

/// Makes the names in the folder that holds `path` durable.
[[nodiscard]] Expected<void> syncFolderOf(const std::string& path);

} // namespace quillon
