#pragma once

#include <QString>

#include <cstdint>

namespace quillon {

// Numbers of things as they are told: "1 file", "37 files", "1,200 files".

[[nodiscard]] QString fileCount(std::size_t number);
[[nodiscard]] QString folderCount(std::size_t number);
[[nodiscard]] QString ruleCount(std::size_t number);
[[nodiscard]] QString entryCount(std::size_t number);
[[nodiscard]] QString errorCount(std::size_t number);
[[nodiscard]] QString dayCount(std::size_t number);

/// "512 bytes", "84 KB", "3.8 GB", in steps of a thousand.
[[nodiscard]] QString sizeText(std::uint64_t bytes);

/// What undoing came to: "Put back scan.pdf", "Put back 36 files", "Put back 36 files, 2 couldn’t
/// be", "Couldn’t put scan.pdf back. It has moved or gone." The name counts when there was but one.
[[nodiscard]] QString putBackText(std::size_t restored, std::size_t failed,
                                  const QString& onlyName = {});

} // namespace quillon
