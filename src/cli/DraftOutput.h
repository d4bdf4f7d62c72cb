#pragma once

#include "cli/DraftedRule.h"
#include "cli/LineBuffer.h"
#include "store/JsonStream.h"

namespace quillon {

/// The rule in words, where files would go, the model's note, the warnings, and what it would
/// catch.
void addDraft(const DraftedRule& drafted, LineBuffer& lines);

/// The same as the keys from "rule" to "asks" of an object that has been begun.
void writeDraft(JsonStream& json, const DraftedRule& drafted);

} // namespace quillon
