#pragma once

#include <ctime>
#include <string>
#include <string_view>

namespace quillon {

/// The record that stands beside a trashed file: where it was, and when it was put there in local
/// time. `path` is absolute, or relative to the top folder of the trash's file system.
[[nodiscard]] std::string trashInfo(std::string_view path, std::time_t deleted);

} // namespace quillon
