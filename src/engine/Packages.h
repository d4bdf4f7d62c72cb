#pragma once

#include <string_view>

namespace quillon {

/// True for the name of a folder that stands for one document or program elsewhere ("Notes.rtfd"):
/// it counts as one item and is never looked into.
[[nodiscard]] bool isPackage(std::string_view name);

} // namespace quillon
