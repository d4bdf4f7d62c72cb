#pragma once

#include "cli/LineBuffer.h"
#include "engine/RuleEngine.h"
#include "store/JsonStream.h"

#include <vector>

namespace quillon {

/// What a run over `ready` would do, one line a file and a total.
void addPreview(const ReadyFiles& ready, const std::vector<PreviewItem>& items, LineBuffer& lines);

/// The same as the keys "tested", "deferred" and "items" of an object that has been begun; hands
/// over to `out` now and then.
void writePreview(JsonStream& json, const ReadyFiles& ready, const std::vector<PreviewItem>& items,
                  std::ostream& out);

} // namespace quillon
