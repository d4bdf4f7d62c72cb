#pragma once

#include "reader/FormatReader.h"

#include <memory>
#include <string_view>

namespace quillon {

/// The reader of that name: "pdf", "image", "document" (RTF, .docx, .odt, .doc: the contents tell).
/// Null when there is none.
[[nodiscard]] std::unique_ptr<FormatReader> makeReader(std::string_view name);

} // namespace quillon
