#pragma once

#include "engine/CompiledCondition.h"
#include "model/Condition.h"

namespace quillon {

/// Reads the text that a condition is about.
using ReadSubject = const TextSubject& (*)(FileFacts& file);

[[nodiscard]] CompiledCondition compileText(const Condition& condition, ReadSubject read);
[[nodiscard]] CompiledCaptures textCaptures(const Condition& condition, ReadSubject read);

} // namespace quillon
